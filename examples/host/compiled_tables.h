// The tables that the generated source builds.
#pragma once

#include "handlers.h"
#include "meta.h"

namespace host {

HandlerMeta compiledHandlers();
Meta compiledMeta();

}  // namespace host

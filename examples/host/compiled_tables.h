// The tables that the generated source builds.
#pragma once

#include "metagen/host/handlers.h"
#include "metagen/host/meta.h"

namespace example {

using namespace metagen::host;

HandlerMeta compiledHandlers();
Meta compiledMeta();

}  // namespace example

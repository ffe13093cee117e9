// The tables as the binary files hold them.
#pragma once

#include <string_view>

#include "handlers.h"
#include "meta.h"

namespace host {

/// Reads the bytes of handlers.bin or meta.bin. Throws BadTable when they are no such table.
HandlerMeta loadHandlers(std::string_view bytes);
Meta loadMeta(std::string_view bytes);

}  // namespace host

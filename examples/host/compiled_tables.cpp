#include "compiled_tables.h"

#include <climits>  // INT_MIN, which the generated source names
#include <limits>

namespace host {

namespace {

// Numbers that have no literal: the generated source names them as it would write them.
[[maybe_unused]] constexpr float inff = std::numeric_limits<float>::infinity();
[[maybe_unused]] constexpr float nanf = std::numeric_limits<float>::quiet_NaN();

}  // namespace

HandlerMeta compiledHandlers(){
#include "handlers.inl"
}

Meta compiledMeta() {
#include "meta.inl"
}

}  // namespace host

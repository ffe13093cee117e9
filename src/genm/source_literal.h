// Literals of generated source that more than one table writes.
#pragma once

#include <cstdint>
#include <string>

namespace metagen {

/// Appends the number in decimal; the smallest one as INT_MIN, which has no literal of its own in
/// the host's language.
void appendIntegerLiteral(std::string& out, std::int32_t number);

}  // namespace metagen

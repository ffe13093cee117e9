// Standard exceptions whose texts the tool's users see. The C++ libraries word them differently,
// so the tool raises them itself, with the same text on every platform.
#pragma once

#include <string>

namespace metagen {

/// Throws std::out_of_range "invalid map<K, T> key": a member that a document must have is missing.
[[noreturn]] void throwInvalidMapKey();

/// The number at the start of the text, after blanks, in base 10; whatever follows it is ignored.
/// Throws std::invalid_argument "invalid stoi argument" when there is no digit, and
/// std::out_of_range "stoi argument out of range" beyond 32 bits.
int parseInteger(const std::string& text);

/// The longest float at the start of the text, after blanks; hexadecimal floats, inf and nan
/// included. Throws std::invalid_argument "invalid stof argument" when there is no number, and
/// std::out_of_range "stof argument out of range" when a 32-bit float can't hold it: too large,
/// or not zero and too small for a normal float.
float parseFloat(const std::string& text);

}  // namespace metagen

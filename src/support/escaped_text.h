// The escapes that the base document and the string literals of generated source share.
#pragma once

#include <string>
#include <string_view>

namespace metagen {

/// Appends the text: backspace, tab, line feed, form feed, carriage return, double quote and
/// backslash as their two-character escapes, any other byte below 32, NUL among them, as \u and
/// four lower-case hexadecimal digits, every other byte, 128 and above included, as it is.
void appendEscaped(std::string& out, std::string_view text);

}  // namespace metagen

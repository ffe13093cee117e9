// The number that a text begins with, read without errors like atoi and atof of the C library, but
// with the same result on every platform and in every locale.
#pragma once

#include <cstdint>
#include <string_view>

namespace metagen {

/// What isspace of the default locale calls a blank.
bool isBlank(char byte);

/// The decimal number after any blanks and a sign; whatever follows it is ignored. Without a digit
/// 0, beyond 64 bits the nearest 64-bit number.
std::int64_t readIntegerPrefix(std::string_view text);

/// The longest number after any blanks and a sign: decimal, hexadecimal (0x1.8p3), inf or nan.
/// Without a number 0, too large an infinity, too small 0.
double readDoublePrefix(std::string_view text);

}  // namespace metagen

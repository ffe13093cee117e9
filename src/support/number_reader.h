// The number that a text begins with, read as the C library reads it, but with the same result on
// every platform and whatever locale an SDK's library may have set.
#pragma once

#include <cstdint>
#include <string_view>

namespace metagen {

/// What isspace of the default locale calls a blank.
bool isBlank(char byte);

/// The decimal number after any blanks and a sign, like atoi; whatever follows it is ignored.
/// Without a digit 0, beyond 64 bits the nearest 64-bit number.
std::int64_t readIntegerPrefix(std::string_view text);

/// The longest number after any blanks and a sign, like atof: decimal, hexadecimal (0x1.8p3), inf
/// or nan. Without a number 0, too large an infinity, too small 0.
double readDoublePrefix(std::string_view text);

/// The same as readIntegerPrefix, but throws std::invalid_argument "invalid stoi argument" when
/// there is no digit, and std::out_of_range "stoi argument out of range" beyond 32 bits.
std::int32_t parseInteger(std::string_view text);

/// The same as readDoublePrefix for a float, but throws std::invalid_argument "invalid stof
/// argument" when there is no number, and std::out_of_range "stof argument out of range" when it is
/// too large, or not zero and too small for any float.
float parseFloat(std::string_view text);

}  // namespace metagen

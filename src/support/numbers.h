// Numbers: read and written the same on every platform, whatever locale an SDK's library may have
// set, and converted with a defined result for every input.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace metagen {

/// Truncates toward zero. Anything that 32 bits can't hold, NaN included, gives -2147483648.
std::int32_t toInt32(double number);

/// Truncates toward zero. Anything that 64 bits can't hold, NaN included, gives the smallest
/// 64-bit integer.
std::int64_t toInt64(double number);

/// Rounds to the nearest float; a number beyond the float range gives an infinity of its sign.
float toFloat(double number);

/// The low 32 bits, read as a signed number.
std::int32_t lowBitsToInt32(std::int64_t number);

/// What isspace of the default locale calls a blank.
bool isBlank(char byte);

/// The decimal number after any blanks and a sign, like atoi; whatever follows it is ignored.
/// Without a digit 0, beyond 64 bits the nearest 64-bit number.
std::int64_t readIntegerPrefix(std::string_view text);

/// The longest number after any blanks and a sign, like atof: decimal, hexadecimal (0x1.8p3), inf
/// or nan. Without a number 0, too large an infinity, too small 0.
double readDoublePrefix(std::string_view text);

/// What readIntegerPrefix and readDoublePrefix ignore: what follows the number, or the whole text
/// when there is none.
std::string_view restAfterInteger(std::string_view text);
std::string_view restAfterDouble(std::string_view text);

/// The same as readIntegerPrefix, but throws std::invalid_argument "invalid stoi argument" when
/// there is no digit, and std::out_of_range "stoi argument out of range" beyond 32 bits.
std::int32_t parseInteger(std::string_view text);

/// The same as readDoublePrefix for a float, but throws std::invalid_argument "invalid stof
/// argument" when there is no number, and std::out_of_range "stof argument out of range" when it is
/// too large, or not zero and too small for any float.
float parseFloat(std::string_view text);

/// Appends the number in decimal.
void appendInteger(std::string& out, std::int64_t number);

/// Appends the number with at most six significant digits, shortest general form: 1, 0.5, 1e-07,
/// 1.23457e+08.
void appendGeneral(std::string& out, double number);

/// Appends a float as a source literal: a whole number from -999999 to 999999 in general form and
/// ".f" (1.f), any other in general form and "f" (0.5f, 1e+06f). The bound keeps ".f" away from
/// exponents, where it would be ill-formed.
void appendFloatLiteral(std::string& out, float number);

/// Appends the number in decimal as a source literal; the smallest one as INT_MIN, which has no
/// literal of its own in the host's language.
void appendIntegerLiteral(std::string& out, std::int32_t number);

/// Appends the literals of the numbers, separated by ", ".
void appendFloatList(std::string& out, std::span<const float> numbers);

}  // namespace metagen

// Conversions between number types, defined for every input. Out-of-range results are those of
// the x86-64 conversion instructions, which existing consumers of the outputs have come to rely on.
#pragma once

#include <cstdint>

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

}  // namespace metagen

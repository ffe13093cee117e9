#include "support/numbers.h"

#include <cmath>
#include <limits>

namespace metagen {

std::int32_t toInt32(double number) {
    constexpr double lowest = -2147483648.0;
    constexpr double end = 2147483648.0;
    const double whole = std::trunc(number);
    const bool fits = whole >= lowest && whole < end;
    return fits ? static_cast<std::int32_t>(whole) : std::numeric_limits<std::int32_t>::min();
}

std::int64_t toInt64(double number) {
    constexpr double lowest = -9223372036854775808.0;
    constexpr double end = 9223372036854775808.0;
    const bool fits = number >= lowest && number < end;
    return fits ? static_cast<std::int64_t>(number) : std::numeric_limits<std::int64_t>::min();
}

float toFloat(double number) {
    // Half a step above the largest float: from here on rounding to nearest gives infinity.
    constexpr double overflow = 0x1.ffffffp+127;
    constexpr float infinity = std::numeric_limits<float>::infinity();
    if (number >= overflow) return infinity;
    if (number <= -overflow) return -infinity;
    constexpr double largest = std::numeric_limits<float>::max();
    if (number > largest) return std::numeric_limits<float>::max();
    if (number < -largest) return std::numeric_limits<float>::lowest();
    return static_cast<float>(number);
}

std::int32_t lowBitsToInt32(std::int64_t number) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

}  // namespace metagen

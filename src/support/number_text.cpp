#include "support/numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace metagen {

namespace {

constexpr int significantDigits = 6;

constexpr std::array<std::uint32_t, 10> powersOfTen = {
    1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};

/// The significant digits of a number as one whole number, and the power of ten of the first.
struct Decimal {
    std::uint32_t digits;  ///< from 100000 to 999999
    int exponent;
};

/// Rounds a number to its significant digits, ties to even, as the standard library does. Nothing
/// for a number that has an exponent in the general form, or more bits than a float.
///
/// Nearly every number of a document is such a float. Its bits times a power of ten fit an integer,
/// so that a shift rounds exactly; the standard library's way, made for any precision of any
/// double, takes ten times as long.
std::optional<Decimal> roundShort(double magnitude) {
    if (!(magnitude >= 1e-4 && magnitude < 1e6)) return std::nullopt;
    constexpr unsigned storedBits = 52;
    constexpr unsigned unusedBits = storedBits - 23;
    constexpr unsigned exponentBias = 1023;
    const auto bits = std::bit_cast<std::uint64_t>(magnitude);
    if ((bits & ((std::uint64_t{1} << unusedBits) - 1)) != 0) return std::nullopt;
    const std::uint64_t mantissa = (bits & ((std::uint64_t{1} << storedBits) - 1)) >> unusedBits |
                                   std::uint64_t{1} << (storedBits - unusedBits);
    // The magnitude is the mantissa divided by two to this power, which is 4 to 37.
    const auto shift = static_cast<unsigned>(exponentBias + 23 - (bits >> storedBits));

    constexpr std::array<double, 9> powers = {1e-3, 1e-2, 1e-1, 1, 1e1, 1e2, 1e3, 1e4, 1e5};
    const auto power = std::ranges::upper_bound(powers, magnitude);
    const int exponent = static_cast<int>(power - powers.begin()) - 4;
    const auto scale = static_cast<std::size_t>(significantDigits - 1 - exponent);
    const std::uint64_t scaled = mantissa * powersOfTen[scale];
    const std::uint64_t rest = scaled & ((std::uint64_t{1} << shift) - 1);
    const std::uint64_t half = std::uint64_t{1} << (shift - 1);
    auto digits = static_cast<std::uint32_t>(scaled >> shift);
    if (rest > half || (rest == half && digits % 2 == 1)) ++digits;
    if (digits == powersOfTen[significantDigits]) return std::nullopt;
    return Decimal{digits, exponent};
}

/// Appends the decimal, without the zeros that end its fraction.
void appendDecimal(std::string& out, const Decimal& decimal, bool isNegative) {
    constexpr std::string_view zeros = "0.000";
    char text[16];
    char* end = text;
    if (isNegative) *end++ = '-';
    if (decimal.exponent < 0) {
        end =
            std::ranges::copy(zeros.substr(0, static_cast<std::size_t>(1 - decimal.exponent)), end)
                .out;
    }
    std::uint32_t rest = decimal.digits;
    for (int place = 0; place < significantDigits && (rest != 0 || place <= decimal.exponent);
         ++place) {
        const std::uint32_t weight =
            powersOfTen[static_cast<std::size_t>(significantDigits - 1 - place)];
        if (place == decimal.exponent + 1 && place > 0) *end++ = '.';
        *end++ = static_cast<char>('0' + rest / weight);
        rest %= weight;
    }
    out.append(text, end);
}

/// Whole numbers of at most six digits have no exponent in the general form.
bool isPlainWhole(double number) { return std::trunc(number) == number && std::fabs(number) < 1e6; }

}  // namespace

void appendInteger(std::string& out, std::int64_t number) {
    char digits[24];
    const std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, number);
    out.append(digits, result.ptr);
}

void appendGeneral(std::string& out, double number) {
    if (isPlainWhole(number)) {
        if (std::signbit(number)) out += '-';  // of zero, too
        return appendInteger(out, static_cast<std::int64_t>(std::fabs(number)));
    }
    if (const std::optional<Decimal> decimal = roundShort(std::fabs(number))) {
        return appendDecimal(out, *decimal, number < 0);
    }
    char digits[32];
    const std::to_chars_result result = std::to_chars(
        digits, digits + sizeof digits, number, std::chars_format::general, significantDigits);
    out.append(digits, result.ptr);
}

void appendFloatLiteral(std::string& out, float number) {
    appendGeneral(out, static_cast<double>(number));
    out += isPlainWhole(static_cast<double>(number)) ? ".f" : "f";
}

void appendIntegerLiteral(std::string& out, std::int32_t number) {
    if (number == std::numeric_limits<std::int32_t>::min()) {
        out += "INT_MIN";
    } else {
        appendInteger(out, number);
    }
}

void appendFloatList(std::string& out, std::span<const float> numbers) {
    const char* separator = "";
    for (const float number : numbers) {
        out += separator;
        appendFloatLiteral(out, number);
        separator = ", ";
    }
}

}  // namespace metagen

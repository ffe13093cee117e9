#include "support/numbers.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <stdexcept>
#include <system_error>

namespace metagen {

namespace {

constexpr std::string_view hexadecimalDigits = "0123456789abcdefABCDEF";

struct SignedText {
    bool negative;
    std::string_view magnitude;  ///< what follows the blanks and the sign
};

SignedText splitSign(std::string_view text) {
    const auto* const begin = std::find_if_not(text.data(), text.data() + text.size(), isBlank);
    text.remove_prefix(static_cast<std::size_t>(begin - text.data()));
    const bool hasSign = text.starts_with('-') || text.starts_with('+');
    return {.negative = text.starts_with('-'), .magnitude = text.substr(hasSign ? 1 : 0)};
}

bool startsHexadecimal(std::string_view text) {
    if (!text.starts_with("0x") && !text.starts_with("0X")) return false;
    const std::size_t digit = text.substr(2).starts_with('.') ? 3 : 2;
    return digit < text.size() && hexadecimalDigits.find(text[digit]) != std::string_view::npos;
}

/// Whether a number beyond the range of a double, in either direction, is the too large one. The
/// place of its first digit other than 0 and its exponent tell.
bool isTooLarge(std::string_view number, bool hexadecimal) {
    constexpr std::int64_t farthest = std::int64_t{1} << 60U;
    const std::size_t mark = number.find_first_of(hexadecimal ? "pP" : "eE");
    const std::string_view digits = number.substr(0, mark);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t first = digits.find_first_not_of("0.");
    const std::int64_t places = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    const std::int64_t exponent =
        mark == std::string_view::npos ? 0 : readIntegerPrefix(number.substr(mark + 1));
    return std::clamp(exponent, -farthest, farthest) + places * (hexadecimal ? 4 : 1) > 0;
}

/// Whether every digit of a number is 0.
bool isZero(std::string_view number, bool hexadecimal) {
    const std::string_view digits =
        number.substr(0, number.find_first_of(hexadecimal ? "pP" : "eE"));
    return digits.find_first_not_of("0.") == std::string_view::npos;
}

/// A number, or what is nearest to it when it is beyond the range of its type.
template <typename Number>
struct Magnitude {
    Number number;
    bool isInRange = true;
    std::string_view rest = {};  ///< what follows it
};

/// Nothing when the text does not begin with a number.
template <typename Number>
std::optional<Magnitude<Number>> readMagnitude(std::string_view text) {
    if (text.starts_with('-')) return std::nullopt;  // a second sign, which from_chars would take
    const bool hexadecimal = startsHexadecimal(text);
    if (hexadecimal) text.remove_prefix(2);
    const auto format = hexadecimal ? std::chars_format::hex : std::chars_format::general;
    Number number = 0;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, number, format);
    if (result.ec == std::errc::invalid_argument) return std::nullopt;
    const std::string_view rest(result.ptr, static_cast<std::size_t>(end - result.ptr));
    text.remove_suffix(rest.size());
    if (result.ec == std::errc::result_out_of_range) {
        constexpr Number infinity = std::numeric_limits<Number>::infinity();
        return Magnitude<Number>{isTooLarge(text, hexadecimal) ? infinity : 0, false, rest};
    }
    // Not every library calls it out of range that a number becomes zero.
    return Magnitude<Number>{number, number != 0 || isZero(text, hexadecimal), rest};
}

/// Nothing without a digit, beyond 64 bits the nearest 64-bit number.
std::optional<std::int64_t> readInteger(std::string_view text) {
    using Limits = std::numeric_limits<std::int64_t>;
    const auto [negative, magnitude] = splitSign(text);
    std::uint64_t number = 0;
    const std::from_chars_result result =
        std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), number);
    if (result.ec == std::errc::invalid_argument) return std::nullopt;
    const bool saturated = result.ec == std::errc::result_out_of_range ||
                           number > static_cast<std::uint64_t>(Limits::max());
    if (saturated) return negative ? Limits::min() : Limits::max();
    const auto value = static_cast<std::int64_t>(number);
    return negative ? -value : value;
}

}  // namespace

bool isBlank(char byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

std::int64_t readIntegerPrefix(std::string_view text) { return readInteger(text).value_or(0); }

double readDoublePrefix(std::string_view text) {
    const auto [negative, magnitude] = splitSign(text);
    const auto read = readMagnitude<double>(magnitude);
    if (!read) return 0;  // whatever the sign
    return negative ? -read->number : read->number;
}

std::string_view restAfterInteger(std::string_view text) {
    const std::string_view magnitude = splitSign(text).magnitude;
    const auto isDigit = [](char byte) { return byte >= '0' && byte <= '9'; };
    const auto end = std::ranges::find_if_not(magnitude, isDigit);
    const auto digits = static_cast<std::size_t>(end - magnitude.begin());
    return digits == 0 ? text : magnitude.substr(digits);
}

std::string_view restAfterDouble(std::string_view text) {
    const auto read = readMagnitude<double>(splitSign(text).magnitude);
    return read ? read->rest : text;
}

std::int32_t parseInteger(std::string_view text) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::optional<std::int64_t> number = readInteger(text);
    if (!number) throw std::invalid_argument("invalid stoi argument");
    if (*number < Limits::min() || *number > Limits::max()) {
        throw std::out_of_range("stoi argument out of range");
    }
    return static_cast<std::int32_t>(*number);
}

float parseFloat(std::string_view text) {
    const auto [negative, magnitude] = splitSign(text);
    const auto read = readMagnitude<float>(magnitude);
    if (!read) throw std::invalid_argument("invalid stof argument");
    if (!read->isInRange) throw std::out_of_range("stof argument out of range");
    return negative ? -read->number : read->number;
}

}  // namespace metagen

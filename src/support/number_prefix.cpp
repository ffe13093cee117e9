#include "support/number_prefix.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
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

/// Nothing when the text does not begin with a number.
std::optional<double> readMagnitude(std::string_view text) {
    const bool hexadecimal = startsHexadecimal(text);
    if (hexadecimal) text.remove_prefix(2);
    const auto format = hexadecimal ? std::chars_format::hex : std::chars_format::general;
    double number = 0;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, number, format);
    if (result.ec == std::errc::invalid_argument) return std::nullopt;
    if (result.ec != std::errc::result_out_of_range) return number;
    text.remove_suffix(static_cast<std::size_t>(end - result.ptr));
    return isTooLarge(text, hexadecimal) ? std::numeric_limits<double>::infinity() : 0;
}

}  // namespace

bool isBlank(char byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

std::int64_t readIntegerPrefix(std::string_view text) {
    using Limits = std::numeric_limits<std::int64_t>;
    const auto [negative, magnitude] = splitSign(text);
    std::uint64_t number = 0;
    const std::from_chars_result result =
        std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), number);
    const bool saturated = result.ec == std::errc::result_out_of_range ||
                           number > static_cast<std::uint64_t>(Limits::max());
    if (saturated) return negative ? Limits::min() : Limits::max();
    const auto value = static_cast<std::int64_t>(number);
    return negative ? -value : value;
}

double readDoublePrefix(std::string_view text) {
    const auto [negative, magnitude] = splitSign(text);
    if (magnitude.starts_with('-')) return 0;  // a second sign, which from_chars would take
    const std::optional<double> number = readMagnitude(magnitude);
    if (!number) return 0;  // whatever the sign
    return negative ? -*number : *number;
}

}  // namespace metagen

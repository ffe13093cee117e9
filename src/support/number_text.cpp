#include "support/number_text.h"

#include <charconv>
#include <cmath>

namespace metagen {

namespace {

/// Whole numbers up to here have at most six digits, so their general form has no exponent.
constexpr float largestPlainWhole = 999999.0F;

}  // namespace

void appendInteger(std::string& out, std::int64_t number) {
    char digits[24];
    const std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, number);
    out.append(digits, result.ptr);
}

void appendGeneral(std::string& out, double number) {
    constexpr int significantDigits = 6;
    char digits[32];
    const std::to_chars_result result = std::to_chars(
        digits, digits + sizeof digits, number, std::chars_format::general, significantDigits);
    out.append(digits, result.ptr);
}

void appendFloatLiteral(std::string& out, float number) {
    appendGeneral(out, static_cast<double>(number));
    const bool plainWhole = std::trunc(number) == number && std::fabs(number) <= largestPlainWhole;
    out += plainWhole ? ".f" : "f";
}

void appendFloatList(std::string& out, std::span<const float> numbers) {
    const char* separator = "";
    for (const float number : numbers) {
        out += separator;
        appendFloatLiteral(out, number);
        separator = ", ";
    }
}

std::string formatFloatLiteral(float number) {
    std::string text;
    appendFloatLiteral(text, number);
    return text;
}

std::string formatFloatList(std::span<const float> numbers) {
    std::string text;
    appendFloatList(text, numbers);
    return text;
}

}  // namespace metagen

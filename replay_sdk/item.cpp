#include "replay_sdk/item.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "support/numeric.h"

namespace metagen::replay {

namespace {

constexpr double firstInexactInteger = 9007199254740992;  // 2^53

/// Whether the whole text reads as a hexadecimal number of at most 64 bits after "0x".
bool readHexadecimal(std::string_view text, std::uint64_t& number) {
    if (text.substr(0, 2) != "0x") return false;
    const char* last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data() + 2, last, number, 16);
    return error == std::errc() && end == last;
}

}  // namespace

std::string Item::place() const {
    if (parent == nullptr) return "/";
    std::string path = parent->parent == nullptr ? std::string() : parent->place();
    path += '/';
    if (name.data() == nullptr) return path + std::to_string(index);
    return path.append(name.substr(0, name.find('\0')));  // the report's text would end there
}

void Item::fail(const std::string& reason) const { throw CatalogueError(place() + ": " + reason); }

const json::Object& Item::object() const {
    if (!value.is<json::Object>()) fail("must be an object");
    return json::asObject(value);
}

const json::Array& Item::array() const {
    if (!value.is<json::Array>()) fail("must be an array");
    return value.get<json::Array>();
}

const std::string& Item::text() const {
    if (!isText()) fail("must be a text");
    const std::string& text = json::asString(value);
    if (text.find('\0') != std::string::npos) fail("the interface can't give a text with a NUL");
    return text;
}

bool Item::boolean() const {
    if (!value.is<bool>()) fail("must be true or false");
    return value.get<bool>();
}

double Item::number() const {
    if (value.is<double>()) return value.get<double>();
    const std::string_view word = isText() ? std::string_view(json::asString(value)) : "";
    if (word == "inf") return std::numeric_limits<double>::infinity();
    if (word == "-inf") return -std::numeric_limits<double>::infinity();
    if (word == "nan") return std::numeric_limits<double>::quiet_NaN();
    if (word == "-nan") return -std::numeric_limits<double>::quiet_NaN();
    fail("must be a number");
}

float Item::single() const {
    const double wide = number();
    const float narrow = toFloat(wide);
    if (std::isinf(narrow) && !std::isinf(wide)) fail("is beyond the range of a float");
    return narrow;
}

std::int64_t Item::integer(std::int64_t lowest, std::int64_t highest) const {
    const double exact = value.is<double>() ? value.get<double>() : 0.5;
    if (std::trunc(exact) == exact && exact >= static_cast<double>(lowest) &&
        exact <= static_cast<double>(highest))
        return toInt64(exact);
    fail("must be an integer from " + std::to_string(lowest) + " to " + std::to_string(highest));
}

std::int32_t Item::integer32() const {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(integer(Limits::min(), Limits::max()));
}

std::int64_t Item::wideInteger() const {
    std::uint64_t bits = 0;
    if (isText() && readHexadecimal(json::asString(value), bits))
        return static_cast<std::int64_t>(bits);
    const double exact = value.is<double>() ? value.get<double>() : firstInexactInteger;
    if (std::trunc(exact) == exact && std::fabs(exact) < firstInexactInteger) return toInt64(exact);
    fail("must be an integer below 2^53, or a text like \"0xFFFF000000000005\"");
}

}  // namespace metagen::replay

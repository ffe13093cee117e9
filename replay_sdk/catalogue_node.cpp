#include "replay_sdk/catalogue_node.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "support/numbers.h"

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

std::string CatalogueNode::place() const {
    if (parent == nullptr) return "/";
    std::string path = parent->parent == nullptr ? std::string() : parent->place();
    path += '/';
    if (name.data() == nullptr) return path + std::to_string(index);
    return path.append(name.substr(0, name.find('\0')));  // the report's text would end there
}

void CatalogueNode::fail(const std::string& reason) const {
    throw CatalogueError(place() + ": " + reason);
}

json::Object CatalogueNode::object() const {
    if (const auto members = value.object()) return *members;
    fail("must be an object");
}

json::Array CatalogueNode::array() const {
    if (const auto elements = value.array()) return *elements;
    fail("must be an array");
}

std::string CatalogueNode::text() const {
    const auto text = value.text();
    if (!text) fail("must be a text");
    if (text->find('\0') != std::string::npos) fail("the interface can't give a text with a NUL");
    return std::string(*text);
}

bool CatalogueNode::boolean() const {
    if (const auto boolean = value.boolean()) return *boolean;
    fail("must be true or false");
}

double CatalogueNode::number() const {
    if (const auto number = value.number()) return *number;
    const std::string_view word = value.text().value_or("");
    if (word == "inf") return std::numeric_limits<double>::infinity();
    if (word == "-inf") return -std::numeric_limits<double>::infinity();
    if (word == "nan") return std::numeric_limits<double>::quiet_NaN();
    if (word == "-nan") return -std::numeric_limits<double>::quiet_NaN();
    fail("must be a number");
}

float CatalogueNode::single() const {
    const double wide = number();
    const float narrow = toFloat(wide);
    if (std::isinf(narrow) && !std::isinf(wide)) fail("is beyond the range of a float");
    return narrow;
}

std::int64_t CatalogueNode::integer(std::int64_t lowest, std::int64_t highest) const {
    const double exact = value.number().value_or(0.5);
    if (std::trunc(exact) == exact && exact >= static_cast<double>(lowest) &&
        exact <= static_cast<double>(highest))
        return toInt64(exact);
    fail("must be an integer from " + std::to_string(lowest) + " to " + std::to_string(highest));
}

std::int32_t CatalogueNode::integer32() const {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(integer(Limits::min(), Limits::max()));
}

std::int64_t CatalogueNode::wideInteger() const {
    std::uint64_t bits = 0;
    if (readHexadecimal(value.text().value_or(""), bits)) return static_cast<std::int64_t>(bits);
    const double exact = value.number().value_or(firstInexactInteger);
    if (std::trunc(exact) == exact && std::fabs(exact) < firstInexactInteger) return toInt64(exact);
    fail("must be an integer below 2^53, or a text like \"0xFFFF000000000005\"");
}

}  // namespace metagen::replay

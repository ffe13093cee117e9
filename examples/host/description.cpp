#include "description.h"

#include <algorithm>
#include <cstdio>

namespace example {

namespace {

/// Long arrays are cut.
template <typename Number>
std::string describeNumbers(const std::vector<Number>& numbers) {
    constexpr std::size_t shown = 12;
    std::string text = "(";
    for (std::size_t index = 0; index < std::min(shown, numbers.size()); ++index) {
        if (index > 0) text += ", ";
        text += describe(numbers[index]);
    }
    return text + (numbers.size() > shown ? ", ...)" : ")");
}

/// "4 floats", "list of 3 floats", "list of strings"
std::string describeType(std::uint32_t descriptor) {
    std::string text = (descriptor & qymat::SQDT_LIST) != 0 ? "list of " : "";
    if ((descriptor & qymat::STDT_ARRAY_3) != 0) text += "3 ";
    if ((descriptor & qymat::STDT_ARRAY_4) != 0) text += "4 ";
    if ((descriptor & qymat::STDT_ARRAY_9) != 0) text += "9 ";
    if ((descriptor & qymat::STDT_ARRAY_12) != 0) text += "12 ";
    if ((descriptor & qymat::RDT_FLOAT) != 0) text += "floats";
    if ((descriptor & qymat::RDT_INT) != 0) text += "integers";
    if ((descriptor & qymat::RDT_STRING) != 0) text += "strings";
    return text;
}

struct DefaultDescription {
    std::string operator()(std::int32_t number) const { return describe(number); }
    std::string operator()(float number) const { return describe(number); }
    std::string operator()(const std::string& text) const { return '"' + text + '"'; }
    std::string operator()(const TypeOnly& type) const { return describeType(type.descriptor); }
    template <typename Number>
    std::string operator()(const NumberArray<Number>& array) const {
        return describeType(array.descriptor) + ' ' + describeNumbers(array.numbers);
    }
};

}  // namespace

std::string describe(std::int32_t number) { return std::to_string(number); }

std::string describe(float number) {
    char digits[32];
    static_cast<void>(std::snprintf(digits, sizeof digits, "%.6g", static_cast<double>(number)));
    return digits;
}

std::string describe(const Handler& handler) {
    if (handler.type == HandlerTypes::Duplicate) return "duplicate";
    const std::string value = handler.value.empty() ? "(1)" : describeNumbers(handler.value);
    return (handler.type == HandlerTypes::Color ? "color " : "float ") + value;
}

std::string describe(const DefaultValue& value) { return std::visit(DefaultDescription{}, value); }

std::string describe(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
    return text;
}

std::string describe(const Scaling::Condition& condition) {
    std::string text = condition.parameter + " is ";
    if (const auto* number = std::get_if<std::int32_t>(&condition.value)) text += describe(*number);
    if (const auto* number = std::get_if<float>(&condition.value)) text += describe(*number);
    return text;
}

std::string describe(const Scaling& scaling) {
    std::string text = scaling.unit == Scaling::UnitType::Scene ? "with the scene" : "otherwise";
    if (scaling.inverse) text += ", inverse";
    if (scaling.power != 1) text += ", to the power of " + describe(scaling.power);
    const char* link = ", where ";
    for (const Scaling::Condition& condition : scaling.conditions) {
        text += link + describe(condition);
        link = " and ";
    }
    return text;
}

}  // namespace example

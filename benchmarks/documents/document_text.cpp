#include "benchmarks/documents/document_text.h"

#include <array>
#include <cstdio>
#include <span>

namespace metagen::invented {

namespace {

namespace kind = replay::kind;

constexpr std::array<std::string_view, 18> typeNames = {
    "integer",        "float",          "float",
    "bool",           "vector",         "color",
    "acolor",         "matrix",         "transform",
    "string",         "plugin",         "texture",
    "list",           "float texture",  "integer texture",
    "vector texture", "matrix texture", "transform texture"};

std::string numberText(double number) {
    std::array<char, 32> text = {};
    static_cast<void>(std::snprintf(text.data(), text.size(), "%g", number));
    return text.data();
}

template <typename Elements, typename TextOfElement>
std::string joined(std::string_view word, const Elements& elements,
                   const TextOfElement& textOfElement) {
    std::string text(word);
    text += '(';
    const char* separator = "";
    for (const auto& element : elements) {
        text += separator;
        text += textOfElement(element);
        separator = ", ";
    }
    return text + ')';
}

std::string numbers(std::string_view word, std::span<const float> floats) {
    return joined(word, floats, numberText);
}

std::string matrixText(std::span<const float> floats) {
    return "Matrix(" + numbers("Vector", floats.first(3)) + ", " +
           numbers("Vector", floats.subspan(3, 3)) + ", " + numbers("Vector", floats.last(3)) + ')';
}

std::string transformText(std::span<const float> floats) {
    return "Transform(" + matrixText(floats.first(9)) + ", " + numbers("Vector", floats.last(3)) +
           ')';
}

std::string compoundText(std::int32_t tag, std::span<const float> floats) {
    switch (tag) {
        case kind::vector:
        case kind::vectorList: return numbers("Vector", floats);
        case kind::color:
        case kind::colorList: return numbers("Color", floats);
        case kind::acolor: return numbers("AColor", floats);
        case kind::matrix: return matrixText(floats);
        default: return transformText(floats);
    }
}

std::string compoundListText(std::int32_t tag, std::span<const float> floats) {
    std::vector<std::span<const float>> elements;
    for (std::size_t width = replay::floatsPerValue(tag); !floats.empty();
         floats = floats.subspan(width))
        elements.push_back(floats.first(width));
    std::string_view word = "TransformList";
    if (tag == kind::vectorList) word = "VectorList";
    if (tag == kind::colorList) word = "ColorList";
    return joined(word, elements, [tag](auto element) { return compoundText(tag, element); });
}

std::string referenceText(const replay::PluginReference& reference) {
    if (reference.pluginId == 0) return "#InvalidPlugin";
    const replay::PluginInstance instance = inventInstance(reference.pluginId);
    const auto property = instance.propertyNames.find(reference.propertyIndex);
    if (property == instance.propertyNames.end()) return *instance.name;
    return *instance.name + "::" + property->second;
}

/// A list names its plugins alone, and an id without a plugin is an empty name there.
std::string listedReferenceText(const replay::PluginReference& reference) {
    return reference.pluginId == 0 ? "" : *inventInstance(reference.pluginId).name;
}

/// The text of every kind of payload.
struct PayloadText {
    std::int32_t tag;

    std::string operator()(std::monostate) const { return "#BadValue"; }
    std::string operator()(std::int32_t integer) const { return std::to_string(integer); }
    std::string operator()(float single) const { return numberText(single); }
    std::string operator()(double real) const { return numberText(real); }
    std::string operator()(std::uint8_t boolean) const { return boolean != 0 ? "1" : "0"; }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const replay::PluginReference& reference) const {
        return referenceText(reference);
    }
    std::string operator()(const std::vector<std::int32_t>& integers) const {
        return joined("IntList", integers, [](auto integer) { return std::to_string(integer); });
    }
    std::string operator()(const std::vector<float>& floats) const {
        if (tag < kind::integerList) return compoundText(tag, floats);
        return tag == kind::floatList ? numbers("FloatList", floats)
                                      : compoundListText(tag, floats);
    }
    std::string operator()(const std::vector<replay::Text>& texts) const {
        return joined("StringList", texts, [](const replay::Text& text) { return *text; });
    }
    std::string operator()(const std::vector<replay::PluginReference>& references) const {
        return joined("PluginList", references, listedReferenceText);
    }
    std::string operator()(const std::vector<replay::DefaultValue>& values) const {
        return joined("List", values, textOf);
    }
};

std::string guideText(std::int32_t typeCode, const replay::Guide& guide) {
    if (!guide.floats) return numberText(guide.single);
    const bool hasAlpha = typeCode == 11 && guide.floats->size() == 4;
    return compoundText(hasAlpha ? kind::acolor : kind::color, *guide.floats);
}

}  // namespace

std::string_view typeNameOf(std::int32_t typeCode) {
    return typeNames[static_cast<std::size_t>(typeCode % 100)];
}

std::optional<std::string> defaultTextOf(const InventedParameter& parameter) {
    if (parameter.guide) return guideText(parameter.typeCode, *parameter.guide);
    if (parameter.isList && parameter.defaultValue.kind == kind::badValue) return std::nullopt;
    std::string text = textOf(parameter.defaultValue);
    if (text == "none") return std::nullopt;
    return text;
}

std::string textOf(const replay::DefaultValue& value) {
    return std::visit(PayloadText{value.kind}, value.payload);
}

std::string quoted(std::string_view text) {
    std::string json = "\"";
    for (const char character : text) {
        if (character == '\t') {
            json += "\\t";
            continue;
        }
        if (character == '"' || character == '\\') json += '\\';
        json += character;
    }
    return json + '"';
}

}  // namespace metagen::invented

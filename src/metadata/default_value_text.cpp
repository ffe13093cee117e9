#include "metadata/default_value_text.h"

#include <array>
#include <span>
#include <string_view>

#include "sdk/parameter_type.h"
#include "sdk/renderer.h"
#include "sdk/sdk_memory.h"
#include "support/number_text.h"

namespace metagen {

namespace {

/// Appends "word(", what appendElement appends for each element, separated, and ")".
template <typename Elements, typename AppendElement>
void appendElements(std::string& out, std::string_view word, const Elements& elements,
                    const AppendElement& appendElement) {
    out += word;
    out += '(';
    std::string_view separator;
    for (const auto& element : elements) {
        out += separator;
        appendElement(out, element);
        separator = ", ";
    }
    out += ')';
}

void appendFloat(std::string& out, float number) {
    appendGeneral(out, static_cast<double>(number));
}

void appendFloats(std::string& out, std::string_view word, std::span<const float> numbers) {
    appendElements(out, word, numbers, appendFloat);
}

using Floats3 = std::span<const float, 3>;
using Floats9 = std::span<const float, 9>;
using Floats12 = std::span<const float, 12>;

void appendVector(std::string& out, Floats3 vector) { appendFloats(out, "Vector", vector); }

void appendColor(std::string& out, Floats3 color) { appendFloats(out, "Color", color); }

void appendMatrix(std::string& out, Floats9 matrix) {
    const Floats3 rows[] = {matrix.subspan<0, 3>(), matrix.subspan<3, 3>(), matrix.subspan<6, 3>()};
    appendElements(out, "Matrix", rows, appendVector);
}

void appendTransform(std::string& out, Floats12 transform) {
    out += "Transform(";
    appendMatrix(out, transform.first<9>());
    out += ", ";
    appendVector(out, transform.last<3>());
    out += ')';
}

/// A list whose elements lie in one array of floats.
template <std::size_t count>
void appendCompounds(std::string& out, std::string_view word, const QyraValue& list,
                     void (*appendOne)(std::string& out, std::span<const float, count> floats)) {
    using Floats = std::array<float, count>;
    appendElements(out, word, elementsOf<const Floats>(list),
                   [appendOne](std::string& text, const Floats& floats) {
                       appendOne(text, std::span<const float, count>(floats));
                   });
}

void appendText(std::string& out, const char* text) {
    if (text != nullptr) out += text;
}

void appendPluginName(std::string& out, const QyraPluginReference& reference) {
    appendText(out, pluginName(reference));  // a plugin without a name has an empty one
}

void appendPluginReference(std::string& out, const QyraPluginReference& reference) {
    if (!pluginExists(reference)) {
        out += "#InvalidPlugin";
        return;
    }
    appendPluginName(out, reference);
    if (reference.propertyIndex < 1) return;
    const char* property = propertyName(reference);
    if (property != nullptr) out.append("::").append(property);
}

void appendListText(std::string& out, const QyraValue& value) {
    switch (value.kind) {
        case qyra_kind::genericList:
            return appendElements(out, "List", elementsOf<const QyraValue>(value),
                                  appendDefaultValueText);
        case qyra_kind::integerList:
            return appendElements(out, "IntList", elementsOf<const std::int32_t>(value),
                                  appendInteger);
        case qyra_kind::floatList:
            return appendFloats(out, "FloatList", elementsOf<const float>(value));
        case qyra_kind::vectorList: return appendCompounds(out, "VectorList", value, appendVector);
        case qyra_kind::colorList: return appendCompounds(out, "ColorList", value, appendColor);
        case qyra_kind::transformList:
            return appendCompounds(out, "TransformList", value, appendTransform);
        case qyra_kind::textList:
            return appendElements(out, "StringList", elementsOf<const char* const>(value),
                                  appendText);
        case qyra_kind::pluginList:
            // The elements are not asked whether they exist, unlike a single reference.
            return appendElements(out, "PluginList", elementsOf<const QyraPluginReference>(value),
                                  appendPluginName);
        default: out += "<?>"; return;
    }
}

}  // namespace

void appendDefaultValueText(std::string& out, const QyraValue& value) {
    const std::span<const float, 12> components(value.components);
    switch (value.kind) {
        case qyra_kind::bad: out += "#BadValue"; return;
        case qyra_kind::unspecified: out += "#Unspecified"; return;
        case type_code::integer: return appendInteger(out, value.integer);
        case type_code::floatNumber: return appendFloat(out, value.single);
        case type_code::doubleNumber: return appendGeneral(out, value.real);
        case type_code::boolean: out += value.boolean != 0 ? '1' : '0'; return;
        case type_code::vector: return appendVector(out, components.first<3>());
        case type_code::color: return appendColor(out, components.first<3>());
        case type_code::acolor: return appendFloats(out, "AColor", components.first<4>());
        case type_code::matrix: return appendMatrix(out, components.first<9>());
        case type_code::transform: return appendTransform(out, components);
        case type_code::string: return appendText(out, value.text);
        case type_code::plugin: return appendPluginReference(out, value.reference);
        default: return appendListText(out, value);
    }
}

}  // namespace metagen

#include "metadata/default_value_text.h"

#include <span>
#include <string_view>
#include <vector>

#include "sdk/parameter_type.h"
#include "sdk/renderer.h"
#include "sdk/sdk_memory.h"
#include "support/numbers.h"

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

void appendMatrix(std::string& out, std::span<const float> matrix) {
    const std::span<const float> rows[] = {matrix.first(3), matrix.subspan(3, 3),
                                           matrix.subspan(6, 3)};
    appendElements(out, "Matrix", rows, [](std::string& text, std::span<const float> row) {
        appendFloats(text, "Vector", row);
    });
}

/// A vector or a colour, a matrix by rows, or a matrix and an offset.
void appendCompound(std::string& out, const ParameterType& type, std::span<const float> numbers) {
    if (type.code == type_code::matrix) return appendMatrix(out, numbers);
    if (type.code != type_code::transform) return appendFloats(out, type.word, numbers);
    out += "Transform(";
    appendMatrix(out, numbers.first(9));
    out += ", ";
    appendFloats(out, "Vector", numbers.last(3));
    out += ')';
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

/// The elements lie in one array of floats.
void appendCompounds(std::string& out, const ParameterType& type, const QyraValue& list) {
    const auto* numbers = static_cast<const float*>(list.elements);
    const std::span<const float> all(numbers, elementCount(list) * type.components);
    std::vector<std::span<const float>> compounds;
    for (std::size_t begin = 0; begin < all.size(); begin += type.components) {
        compounds.push_back(all.subspan(begin, type.components));
    }
    appendElements(out, type.listWord, compounds,
                   [&type](std::string& text, std::span<const float> compound) {
                       appendCompound(text, type, compound);
                   });
}

void appendList(std::string& out, const ParameterType& type, const QyraValue& list) {
    const std::string_view word = type.listWord;
    switch (type.shape) {
        case ValueShape::integer:
            return appendElements(out, word, elementsOf<const std::int32_t>(list), appendInteger);
        case ValueShape::single: return appendFloats(out, word, elementsOf<const float>(list));
        case ValueShape::floats: return appendCompounds(out, type, list);
        case ValueShape::text:
            return appendElements(out, word, elementsOf<const char* const>(list), appendText);
        case ValueShape::plugin:
            // The elements are not asked whether they exist, unlike a single reference.
            return appendElements(out, word, elementsOf<const QyraPluginReference>(list),
                                  appendPluginName);
        case ValueShape::none:
        case ValueShape::real:
        case ValueShape::boolean:
        case ValueShape::values: return;  // these have no list of their own
    }
}

void appendSingle(std::string& out, const ParameterType& type, const QyraValue& value) {
    switch (type.shape) {
        case ValueShape::none: out += "<?>"; return;
        case ValueShape::integer: return appendInteger(out, value.integer);
        case ValueShape::single: return appendFloat(out, value.single);
        case ValueShape::real: return appendGeneral(out, value.real);
        case ValueShape::boolean: out += value.boolean != 0 ? '1' : '0'; return;
        case ValueShape::floats:
            return appendCompound(out, type, std::span(value.components).first(type.components));
        case ValueShape::text: return appendText(out, value.text);
        case ValueShape::plugin: return appendPluginReference(out, value.reference);
        case ValueShape::values:
            return appendElements(out, type.word, elementsOf<const QyraValue>(value),
                                  appendDefaultValueText);
    }
}

}  // namespace

void appendDefaultValueText(std::string& out, const QyraValue& value) {
    if (value.kind == qyra_kind::bad) {
        out += "#BadValue";
    } else if (value.kind == qyra_kind::unspecified) {
        out += "#Unspecified";
    } else if (const ParameterType* type = findType(value.kind)) {
        appendSingle(out, *type, value);
    } else if (const ParameterType* elementType = findElementType(value.kind)) {
        appendList(out, *elementType, value);
    } else {
        out += "<?>";
    }
}

}  // namespace metagen

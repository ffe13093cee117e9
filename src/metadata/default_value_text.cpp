#include "metadata/default_value_text.h"

#include <span>

#include "metadata/parameter_type.h"
#include "sdk/entry_point_table.h"
#include "sdk/renderer.h"
#include "support/number_text.h"

namespace metagen {

namespace {

/// Appends "word(", what appendElement appends for each element, separated, and ")".
template <typename Elements, typename AppendElement>
void appendElements(std::string& out, const char* word, const Elements& elements,
                    const AppendElement& appendElement) {
    out += word;
    out += '(';
    const char* separator = "";
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

void appendFloats(std::string& out, const char* word, std::span<const float> numbers) {
    appendElements(out, word, numbers, appendFloat);
}

void appendVector(std::string& out, std::span<const float, 3> vector) {
    appendFloats(out, "Vector", vector);
}

void appendColor(std::string& out, const Components& color) {
    appendFloats(out, "Color", std::span(color).first<3>());
}

void appendMatrix(std::string& out, std::span<const float> matrix) {
    out += "Matrix(";
    appendVector(out, matrix.subspan<0, 3>());
    out += ", ";
    appendVector(out, matrix.subspan<3, 3>());
    out += ", ";
    appendVector(out, matrix.subspan<6, 3>());
    out += ')';
}

void appendTransform(std::string& out, const Components& transform) {
    out += "Transform(";
    appendMatrix(out, transform);
    out += ", ";
    appendVector(out, std::span(transform).last<3>());
    out += ')';
}

void appendComponents(std::string& out, std::int32_t tag, const Components& components) {
    switch (tag) {
        case type_code::vector: return appendVector(out, std::span(components).first<3>());
        case type_code::color: return appendColor(out, components);
        case type_code::acolor:
            return appendFloats(out, "AColor", std::span(components).first<4>());
        case type_code::matrix: return appendMatrix(out, components);
        default: return appendTransform(out, components);
    }
}

/// A plugin without a name has an empty one.
void appendPluginName(std::string& out, const PluginReference& reference) {
    if (reference.renderer == nullptr) return;
    const char* name = entryPoints().Qyra_QyraRenderer_getPluginName(
        reference.renderer, pluginIdOf(reference.pluginId));
    if (name != nullptr) out += name;
}

bool pluginExists(const PluginReference& reference) {
    const std::int64_t id = pluginIdOf(reference.pluginId);
    if (reference.renderer == nullptr || id == 0 || id == -1) return false;
    return entryPoints().Qyra_QyraRenderer_pluginExistsByID(reference.renderer, id) != 0;
}

void appendPluginReference(std::string& out, const PluginReference& reference) {
    if (!pluginExists(reference)) {
        out += "#InvalidPlugin";
        return;
    }
    appendPluginName(out, reference);
    if (reference.propertyIndex < 1) return;
    const char* property = entryPoints().Qyra_QyraRenderer_getPropertyNameFromIndexByID(
        reference.renderer, pluginIdOf(reference.pluginId), reference.propertyIndex);
    if (property == nullptr) return;
    out += "::";
    out += property;
}

void appendText(std::string& out, const std::string& text) { out += text; }

const char* componentsListWord(std::int32_t tag) {
    switch (tag) {
        case qyra_kind::vectorList: return "VectorList";
        case qyra_kind::colorList: return "ColorList";
        default: return "TransformList";
    }
}

/// Appends the text of each kind of payload; the tag tells apart the kinds that share one.
struct PayloadWriter {
    std::string& out;
    std::int32_t tag;

    void operator()(std::monostate) const {
        switch (tag) {
            case qyra_kind::bad: out += "#BadValue"; return;
            case qyra_kind::unspecified: out += "#Unspecified"; return;
            default: out += "<?>"; return;
        }
    }
    void operator()(std::int32_t number) const { appendInteger(out, number); }
    void operator()(float number) const { appendFloat(out, number); }
    void operator()(double number) const { appendGeneral(out, number); }
    void operator()(bool truth) const { out += truth ? '1' : '0'; }
    void operator()(const Components& components) const { appendComponents(out, tag, components); }
    void operator()(const std::string& text) const { out += text; }
    void operator()(const PluginReference& reference) const {
        appendPluginReference(out, reference);
    }
    void operator()(const std::vector<TaggedValue>& values) const {
        appendElements(out, "List", values, appendDefaultValueText);
    }
    void operator()(const std::vector<std::int32_t>& numbers) const {
        appendElements(out, "IntList", numbers, appendInteger);
    }
    void operator()(const std::vector<float>& numbers) const {
        appendFloats(out, "FloatList", numbers);
    }
    void operator()(const std::vector<Components>& list) const {
        const auto appendElement = [elementTag = tag - type_code::listOffset](
                                       std::string& text, const Components& components) {
            appendComponents(text, elementTag, components);
        };
        appendElements(out, componentsListWord(tag), list, appendElement);
    }
    void operator()(const std::vector<std::string>& texts) const {
        appendElements(out, "StringList", texts, appendText);
    }
    void operator()(const std::vector<PluginReference>& references) const {
        // The elements are not asked whether they exist, unlike a single reference.
        appendElements(out, "PluginList", references, appendPluginName);
    }
};

}  // namespace

void appendDefaultValueText(std::string& out, const TaggedValue& value) {
    std::visit(PayloadWriter{out, value.tag}, value.payload);
}

std::string defaultValueText(const TaggedValue& value) {
    std::string text;
    appendDefaultValueText(text, value);
    return text;
}

}  // namespace metagen

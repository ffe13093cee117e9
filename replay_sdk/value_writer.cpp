#include "replay_sdk/value_writer.h"

#include <algorithm>
#include <cstring>

namespace metagen::replay {

namespace {

constexpr EntryPoint maker = EntryPoint::Qyra_PluginUtils_getPropertyDefaultValue;

}  // namespace

void ValueWriter::write(const DefaultValue& value, QyraValue& out) {
    std::memset(&out, 0, sizeof(out));
    out.kind = value.kind;
    std::visit([&](const auto& payload) { writePayload(payload, out); }, value.payload);
}

// The zeros that stand there already are the null pointers of a text and of an array.
void ValueWriter::writePayload(std::monostate, QyraValue&) {}

void ValueWriter::writePayload(std::int32_t integer, QyraValue& out) { out.integer = integer; }

void ValueWriter::writePayload(float single, QyraValue& out) { out.single = single; }

void ValueWriter::writePayload(double real, QyraValue& out) { out.real = real; }

void ValueWriter::writePayload(std::uint8_t boolean, QyraValue& out) { out.boolean = boolean; }

void ValueWriter::writePayload(const std::string& text, QyraValue& out) {
    out.text = blocks.copyText(text, maker);
}

void ValueWriter::writePayload(const PluginReference& reference, QyraValue& out) {
    out.reference = handOut(reference);
}

void ValueWriter::writePayload(const std::vector<std::int32_t>& integers, QyraValue& out) {
    std::copy(integers.begin(), integers.end(),
              allocateElements<std::int32_t>(integers.size(), out));
}

void ValueWriter::writePayload(const std::vector<float>& floats, QyraValue& out) {
    if (!isListCode(out.kind)) {
        std::copy(floats.begin(), floats.end(), out.components);
        return;
    }
    std::copy(floats.begin(), floats.end(), allocateElements<float>(floats.size(), out));
    out.count /= static_cast<std::uint32_t>(floatsPerValue(out.kind));
}

void ValueWriter::writePayload(const std::vector<Text>& texts, QyraValue& out) {
    char** element = allocateElements<char*>(texts.size(), out);
    for (const Text& text : texts) *element++ = text ? blocks.copyText(*text, maker) : nullptr;
}

void ValueWriter::writePayload(const std::vector<PluginReference>& references, QyraValue& out) {
    auto* element = allocateElements<QyraPluginReference>(references.size(), out);
    for (const PluginReference& reference : references) *element++ = handOut(reference);
}

void ValueWriter::writePayload(const std::vector<DefaultValue>& values, QyraValue& out) {
    auto* element = allocateElements<QyraValue>(values.size(), out);
    for (const DefaultValue& value : values) write(value, *element++);
}

QyraPluginReference ValueWriter::handOut(const PluginReference& reference) const {
    return {reference.hasRenderer ? renderer : nullptr, reference.pluginId,
            reference.propertyIndex};
}

template <typename Element>
Element* ValueWriter::allocateElements(std::size_t count, QyraValue& out) {
    out.count = static_cast<std::uint32_t>(count);
    out.elements = blocks.allocate(count * sizeof(Element), maker);
    return static_cast<Element*>(out.elements);
}

}  // namespace metagen::replay

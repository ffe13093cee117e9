#include "replay_sdk/catalogue_reader.h"

#include <utility>

#include "sdk/qyra_sdk.h"

namespace metagen::replay {

namespace {

/// The tag of a kind's name, such as "color" or "integerList", or any other number.
std::int32_t readKind(const CatalogueNode& node) {
    if (!node.value.text().has_value()) return node.integer32();
    const std::string name = node.text();
    if (name == "badValue") return qyra_kind::bad;
    if (name == "unspecified") return qyra_kind::unspecified;
    for (const ParameterType& type : parameterTypes) {
        if (type.shape != ValueShape::none && name == type.name) return type.code;
        const bool isList = name == std::string(type.name) + "List";
        if (isList && !type.listWord.empty()) return listCodeOf(type.code);
    }
    node.fail("unknown kind \"" + name + '"');
}

std::uint8_t readByte(const CatalogueNode& node) {
    if (node.value.number()) return static_cast<std::uint8_t>(node.integer(0, 255));
    return node.boolean() ? 1 : 0;
}

Text readText(const CatalogueNode& node) {
    if (node.isNull()) return std::nullopt;
    return node.text();
}

PluginReference readReference(const CatalogueNode& node) {
    static constexpr std::array<std::string_view, 3> names = {"id", "propertyIndex", "renderer"};
    const auto [id, propertyIndex, renderer] = membersOf(node, names);
    if (id == nullptr) node.fail("must have an \"id\"");
    PluginReference reference;
    reference.pluginId = CatalogueNode(node, names[0], *id).wideInteger();
    if (propertyIndex != nullptr)
        reference.propertyIndex = CatalogueNode(node, names[1], *propertyIndex).integer32();
    if (renderer != nullptr)
        reference.hasRenderer = CatalogueNode(node, names[2], *renderer).boolean();
    return reference;
}

void appendFloats(std::vector<float>& floats, const CatalogueNode& node, std::size_t count) {
    if (node.array().size() != count) node.fail("must have " + std::to_string(count) + " numbers");
    node.forEachElement([&](const CatalogueNode& element) { floats.push_back(element.single()); });
}

std::vector<float> readFloats(const CatalogueNode& node, std::int32_t tag) {
    std::vector<float> floats;
    const std::size_t width = floatsPerValue(tag);
    if (!isListCode(tag)) {
        appendFloats(floats, node, width);
        return floats;
    }
    node.forEachElement(
        [&](const CatalogueNode& element) { appendFloats(floats, element, width); });
    return floats;
}

template <typename Element>
std::vector<Element> readElements(const CatalogueNode& node,
                                  Element (*read)(const CatalogueNode&)) {
    std::vector<Element> elements;
    elements.reserve(node.array().size());
    node.forEachElement([&](const CatalogueNode& element) { elements.push_back(read(element)); });
    return elements;
}

std::int32_t readInteger(const CatalogueNode& node) { return node.integer32(); }

float readNumber(const CatalogueNode& node) { return node.single(); }

void readSingle(DefaultValue& value, ValueShape shape, const CatalogueNode& node) {
    switch (shape) {
        case ValueShape::integer: value.payload = node.integer32(); return;
        case ValueShape::single: value.payload = node.single(); return;
        case ValueShape::real: value.payload = node.number(); return;
        case ValueShape::boolean: value.payload = readByte(node); return;
        case ValueShape::floats: value.payload = readFloats(node, value.kind); return;
        case ValueShape::text: value.payload = node.text(); return;
        case ValueShape::plugin: value.payload = readReference(node); return;
        case ValueShape::values: value.payload = readElements(node, readTaggedDefault); return;
        case ValueShape::none: break;
    }
    node.fail("this kind has no value");
}

void readList(DefaultValue& value, ValueShape elementShape, const CatalogueNode& node) {
    switch (elementShape) {
        case ValueShape::integer: value.payload = readElements(node, readInteger); return;
        case ValueShape::single: value.payload = readElements(node, readNumber); return;
        case ValueShape::floats: value.payload = readFloats(node, value.kind); return;
        case ValueShape::text: value.payload = readElements(node, readText); return;
        case ValueShape::plugin: value.payload = readElements(node, readReference); return;
        case ValueShape::none:
        case ValueShape::real:
        case ValueShape::boolean:
        case ValueShape::values: break;  // these have no list of their own
    }
    node.fail("this kind has no value");
}

/// What a value of the kind is made of, or its elements; none for a kind without a value.
ValueShape shapeOf(std::int32_t kind) {
    const ParameterType* element = findElementType(kind);
    const ParameterType* type = element != nullptr ? element : findType(kind);
    return type != nullptr ? type->shape : ValueShape::none;
}

/// Whether a value of the kind is behind a pointer, which may be null.
bool isBehindPointer(std::int32_t kind) {
    return kind == type_code::string || kind == type_code::list || findElementType(kind) != nullptr;
}

}  // namespace

DefaultValue readTaggedDefault(const CatalogueNode& node) {
    static constexpr std::array<std::string_view, 2> names = {"kind", "value"};
    const auto [tag, payload] = membersOf(node, names);
    if (tag == nullptr) node.fail("must have a \"kind\"");
    DefaultValue value;
    value.kind = readKind(CatalogueNode(node, names[0], *tag));
    if (payload == nullptr) {
        if (shapeOf(value.kind) != ValueShape::none) node.fail("must have a \"value\"");
        return value;
    }
    const CatalogueNode payloadNode(node, names[1], *payload);
    if (payloadNode.isNull() && isBehindPointer(value.kind)) return value;
    const bool isTypedList = findElementType(value.kind) != nullptr;
    (isTypedList ? readList : readSingle)(value, shapeOf(value.kind), payloadNode);
    return value;
}

}  // namespace metagen::replay

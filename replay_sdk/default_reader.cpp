#include "replay_sdk/default_reader.h"

#include <utility>

#include "replay_sdk/vocabulary.h"

namespace metagen::replay {

namespace {

std::int32_t readKind(const Item& item) {
    if (!item.value.text().has_value()) return item.integer32();
    const std::optional<std::int32_t> kind = kindOf(item.text());
    if (!kind) item.fail("unknown kind \"" + item.text() + '"');
    return *kind;
}

std::uint8_t readByte(const Item& item) {
    if (item.value.number()) return static_cast<std::uint8_t>(item.integer(0, 255));
    return item.boolean() ? 1 : 0;
}

Text readText(const Item& item) {
    if (item.isNull()) return std::nullopt;
    return item.text();
}

PluginReference readReference(const Item& item) {
    static constexpr std::array<std::string_view, 3> names = {"id", "propertyIndex", "renderer"};
    const auto [id, propertyIndex, renderer] = membersOf(item, names);
    if (id == nullptr) item.fail("must have an \"id\"");
    PluginReference reference;
    reference.pluginId = Item(item, names[0], *id).wideInteger();
    if (propertyIndex != nullptr)
        reference.propertyIndex = Item(item, names[1], *propertyIndex).integer32();
    if (renderer != nullptr) reference.hasRenderer = Item(item, names[2], *renderer).boolean();
    return reference;
}

void appendFloats(std::vector<float>& floats, const Item& item, std::size_t count) {
    if (item.array().size() != count) item.fail("must have " + std::to_string(count) + " numbers");
    item.forEachElement([&](const Item& element) { floats.push_back(element.single()); });
}

std::vector<float> readFloats(const Item& item, std::int32_t tag) {
    std::vector<float> floats;
    const std::size_t width = floatsPerValue(tag);
    if (!isListCode(tag)) {
        appendFloats(floats, item, width);
        return floats;
    }
    item.forEachElement([&](const Item& element) { appendFloats(floats, element, width); });
    return floats;
}

template <typename Element>
std::vector<Element> readElements(const Item& item, Element (*read)(const Item&)) {
    std::vector<Element> elements;
    elements.reserve(item.array().size());
    item.forEachElement([&](const Item& element) { elements.push_back(read(element)); });
    return elements;
}

std::int32_t readInteger(const Item& item) { return item.integer32(); }

float readNumber(const Item& item) { return item.single(); }

void readSingle(DefaultValue& value, ValueShape shape, const Item& item) {
    switch (shape) {
        case ValueShape::integer: value.payload = item.integer32(); return;
        case ValueShape::single: value.payload = item.single(); return;
        case ValueShape::real: value.payload = item.number(); return;
        case ValueShape::boolean: value.payload = readByte(item); return;
        case ValueShape::floats: value.payload = readFloats(item, value.kind); return;
        case ValueShape::text: value.payload = item.text(); return;
        case ValueShape::plugin: value.payload = readReference(item); return;
        case ValueShape::values: value.payload = readElements(item, readTaggedDefault); return;
        case ValueShape::none: break;
    }
    item.fail("this kind has no value");
}

void readList(DefaultValue& value, ValueShape elementShape, const Item& item) {
    switch (elementShape) {
        case ValueShape::integer: value.payload = readElements(item, readInteger); return;
        case ValueShape::single: value.payload = readElements(item, readNumber); return;
        case ValueShape::floats: value.payload = readFloats(item, value.kind); return;
        case ValueShape::text: value.payload = readElements(item, readText); return;
        case ValueShape::plugin: value.payload = readElements(item, readReference); return;
        case ValueShape::none:
        case ValueShape::real:
        case ValueShape::boolean:
        case ValueShape::values: break;  // these have no list of their own
    }
    item.fail("this kind has no value");
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

DefaultValue readTaggedDefault(const Item& item) {
    static constexpr std::array<std::string_view, 2> names = {"kind", "value"};
    const auto [tag, payload] = membersOf(item, names);
    if (tag == nullptr) item.fail("must have a \"kind\"");
    DefaultValue value;
    value.kind = readKind(Item(item, names[0], *tag));
    if (payload == nullptr) {
        if (shapeOf(value.kind) != ValueShape::none) item.fail("must have a \"value\"");
        return value;
    }
    const Item payloadItem(item, names[1], *payload);
    if (payloadItem.isNull() && isBehindPointer(value.kind)) return value;
    const bool isTypedList = findElementType(value.kind) != nullptr;
    (isTypedList ? readList : readSingle)(value, shapeOf(value.kind), payloadItem);
    return value;
}

}  // namespace metagen::replay

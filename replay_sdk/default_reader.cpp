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
    if (tag < kind::integerList) {
        appendFloats(floats, item, width);
        return floats;
    }
    item.forEachElement([&](const Item& element) {
        if (tag == kind::floatList) {
            floats.push_back(element.single());
        } else {
            appendFloats(floats, element, width);
        }
    });
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

void readPayload(DefaultValue& value, const Item& item) {
    switch (value.kind) {
        case kind::integer: value.payload = item.integer32(); break;
        case kind::single: value.payload = item.single(); break;
        case kind::real: value.payload = item.number(); break;
        case kind::boolean: value.payload = readByte(item); break;
        case kind::vector:
        case kind::color:
        case kind::acolor:
        case kind::matrix:
        case kind::transform:
        case kind::floatList:
        case kind::vectorList:
        case kind::colorList:
        case kind::transformList: value.payload = readFloats(item, value.kind); break;
        case kind::string: value.payload = item.text(); break;
        case kind::plugin: value.payload = readReference(item); break;
        case kind::list: value.payload = readElements(item, readTaggedDefault); break;
        case kind::integerList: value.payload = readElements(item, readInteger); break;
        case kind::stringList: value.payload = readElements(item, readText); break;
        case kind::pluginList: value.payload = readElements(item, readReference); break;
        default: item.fail("this kind has no value");
    }
}

/// Kinds whose value is behind a pointer, which may be null.
bool isBehindPointer(std::int32_t tag) {
    switch (tag) {
        case kind::string:
        case kind::list:
        case kind::integerList:
        case kind::floatList:
        case kind::vectorList:
        case kind::colorList:
        case kind::transformList:
        case kind::stringList:
        case kind::pluginList: return true;
        default: return false;
    }
}

bool hasPayload(std::int32_t tag) {
    return (tag >= kind::integer && tag <= kind::plugin) || isBehindPointer(tag);
}

}  // namespace

DefaultValue readTaggedDefault(const Item& item) {
    static constexpr std::array<std::string_view, 2> names = {"kind", "value"};
    const auto [tag, payload] = membersOf(item, names);
    if (tag == nullptr) item.fail("must have a \"kind\"");
    DefaultValue value;
    value.kind = readKind(Item(item, names[0], *tag));
    if (payload == nullptr) {
        if (hasPayload(value.kind)) item.fail("must have a \"value\"");
        return value;
    }
    const Item payloadItem(item, names[1], *payload);
    if (!(payloadItem.isNull() && isBehindPointer(value.kind))) readPayload(value, payloadItem);
    return value;
}

}  // namespace metagen::replay

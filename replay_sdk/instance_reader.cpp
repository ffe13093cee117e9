#include "replay_sdk/instance_reader.h"

#include <charconv>

namespace metagen::replay {

namespace {

constexpr std::array<std::string_view, 5> memberNames = {"id", "name", "exists", "class",
                                                         "propertyNames"};

std::int64_t readId(const Item& item) {
    constexpr std::int64_t bound = std::int64_t{1} << 47U;
    const std::int64_t id = item.wideInteger();
    if (id < -bound || id >= bound) item.fail("must fit into 48 bits with its sign");
    return id;
}

std::int64_t readClassName(const Item& item, const Catalogue& catalogue) {
    const PluginClass* known = catalogue.classNamed(item.text());
    if (known == nullptr) item.fail("unknown class \"" + item.text() + '"');
    return known->typeId;
}

void readPropertyNames(const Item& item, PluginInstance& instance) {
    item.forEachMember([&](const Item& member) {
        std::int32_t index = 0;
        const char* last = member.name.data() + member.name.size();
        const auto [end, error] = std::from_chars(member.name.data(), last, index);
        if (error != std::errc() || end != last)
            member.fail("the name must be a property's index, a 32-bit integer");
        instance.propertyNames[index] = member.text();
    });
}

}  // namespace

std::pair<std::int64_t, PluginInstance> readInstance(const Item& item, const Catalogue& catalogue) {
    const auto [id, name, exists, className, propertyNames] = membersOf(item, memberNames);
    if (id == nullptr) item.fail("must have an \"id\"");
    PluginInstance instance;
    if (name != nullptr && !name->isNull()) instance.name = Item(item, "name", *name).text();
    if (exists != nullptr) instance.exists = Item(item, "exists", *exists).boolean();
    if (className != nullptr)
        instance.typeId = readClassName(Item(item, "class", *className), catalogue);
    if (propertyNames != nullptr)
        readPropertyNames(Item(item, "propertyNames", *propertyNames), instance);
    return {readId(Item(item, "id", *id)), std::move(instance)};
}

}  // namespace metagen::replay

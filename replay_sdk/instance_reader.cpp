#include "replay_sdk/catalogue_reader.h"

#include <charconv>

namespace metagen::replay {

namespace {

constexpr std::array<std::string_view, 5> memberNames = {"id", "name", "exists", "class",
                                                         "propertyNames"};

std::int64_t readId(const CatalogueNode& node) {
    constexpr std::int64_t bound = std::int64_t{1} << 47U;
    const std::int64_t id = node.wideInteger();
    if (id < -bound || id >= bound) node.fail("must fit into 48 bits with its sign");
    return id;
}

std::int64_t readClassName(const CatalogueNode& node, const Catalogue& catalogue) {
    const PluginClass* known = catalogue.classNamed(node.text());
    if (known == nullptr) node.fail("unknown class \"" + node.text() + '"');
    return known->typeId;
}

void readPropertyNames(const CatalogueNode& node, PluginInstance& instance) {
    node.forEachMember([&](const CatalogueNode& member) {
        std::int32_t index = 0;
        const char* last = member.name.data() + member.name.size();
        const auto [end, error] = std::from_chars(member.name.data(), last, index);
        if (error != std::errc() || end != last)
            member.fail("the name must be a property's index, a 32-bit integer");
        instance.propertyNames[index] = member.text();
    });
}

}  // namespace

std::pair<std::int64_t, PluginInstance> readInstance(const CatalogueNode& node,
                                                     const Catalogue& catalogue) {
    const auto [id, name, exists, className, propertyNames] = membersOf(node, memberNames);
    if (id == nullptr) node.fail("must have an \"id\"");
    PluginInstance instance;
    if (name != nullptr && !name->isNull())
        instance.name = CatalogueNode(node, "name", *name).text();
    if (exists != nullptr) instance.exists = CatalogueNode(node, "exists", *exists).boolean();
    if (className != nullptr)
        instance.typeId = readClassName(CatalogueNode(node, "class", *className), catalogue);
    if (propertyNames != nullptr)
        readPropertyNames(CatalogueNode(node, "propertyNames", *propertyNames), instance);
    return {readId(CatalogueNode(node, "id", *id)), std::move(instance)};
}

}  // namespace metagen::replay

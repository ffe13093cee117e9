#include "replay_sdk/catalogue_reader.h"

#include <utility>

#include "sdk/parameter_type.h"

namespace metagen::replay {

namespace {

constexpr std::array<std::string_view, 6> memberNames = {"type",   "categories", "typeText",
                                                         "typeId", "params",     "parameterNames"};

/// A member's name as a text of the interface.
std::string nameOf(const CatalogueNode& member) {
    if (member.name.find('\0') != std::string_view::npos)
        member.fail("the interface can't give a name with a NUL");
    return std::string(member.name);
}

/// The first of the bits that alone give the name.
std::uint64_t readCategoryName(const CatalogueNode& name) {
    if (name.isNull()) return 0;
    const std::string wanted = name.text();
    for (int code = 0; categoryName(code); ++code)
        if (categoryName(code) == wanted) return std::uint64_t{1} << static_cast<unsigned>(code);
    name.fail("unknown category \"" + wanted + '"');
}

std::uint64_t readCategoryBits(const CatalogueNode& node) {
    constexpr std::int64_t lastBit = 63;
    std::uint64_t bits = 0;
    node.forEachElement([&](const CatalogueNode& bit) {
        bits |= std::uint64_t{1} << static_cast<unsigned>(bit.integer(0, lastBit));
    });
    return bits;
}

}  // namespace

PluginClass readClass(const CatalogueNode& member) {
    const auto [type, categories, typeText, typeId, params, names] = membersOf(member, memberNames);
    PluginClass pluginClass;
    pluginClass.name = nameOf(member);
    pluginClass.typeText = pluginClass.name;
    if (type != nullptr) pluginClass.categories = readCategoryName({member, "type", *type});
    if (categories != nullptr) {
        const CatalogueNode node(member, "categories", *categories);
        if (type != nullptr) node.fail("\"type\" says this already");
        pluginClass.categories = readCategoryBits(node);
    }
    if (typeText != nullptr)
        pluginClass.typeText = CatalogueNode(member, "typeText", *typeText).text();
    if (typeId != nullptr) {
        const CatalogueNode node(member, "typeId", *typeId);
        pluginClass.typeId = node.wideInteger();
        if (pluginClass.typeId == 0) node.fail("0 stands for no class");
    }
    return pluginClass;
}

void readParameters(const CatalogueNode& member, PluginClass& owner, Catalogue& catalogue,
                    const InstanceNaming& instanceOf) {
    const json::Value* params = json::find(member.object(), "params");
    owner.firstParameter = catalogue.parameters.size();
    if (params != nullptr) {
        CatalogueNode(member, "params", *params).forEachMember([&](const CatalogueNode& parameter) {
            catalogue.parameters.push_back(readParameter(parameter, instanceOf));
            catalogue.parameters.back().name = nameOf(parameter);
        });
    }
    owner.parameterCount = catalogue.parameters.size() - owner.firstParameter;
    const json::Value* names = json::find(member.object(), "parameterNames");
    if (names == nullptr) return;
    owner.parameterNames = readNames(
        CatalogueNode(member, "parameterNames", *names),
        [&](const std::string& name) { return catalogue.parameterNamed(owner, name) != nullptr; });
}

}  // namespace metagen::replay

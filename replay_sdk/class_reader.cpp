#include "replay_sdk/class_reader.h"

#include <utility>

#include "replay_sdk/parameter_reader.h"
#include "replay_sdk/vocabulary.h"

namespace metagen::replay {

namespace {

constexpr std::array<std::string_view, 6> memberNames = {"type",   "categories", "typeText",
                                                         "typeId", "params",     "parameterNames"};

/// A member's name as a text of the interface.
std::string nameOf(const Item& member) {
    if (member.name.find('\0') != std::string_view::npos)
        member.fail("the interface can't give a name with a NUL");
    return std::string(member.name);
}

std::uint64_t readCategoryName(const Item& name) {
    if (name.isNull()) return 0;
    const std::optional<unsigned> bit = categoryBitOf(name.text());
    if (!bit) name.fail("unknown category \"" + name.text() + '"');
    return std::uint64_t{1} << *bit;
}

std::uint64_t readCategoryBits(const Item& item) {
    constexpr std::int64_t lastBit = 63;
    std::uint64_t bits = 0;
    item.forEachElement([&](const Item& bit) {
        bits |= std::uint64_t{1} << static_cast<unsigned>(bit.integer(0, lastBit));
    });
    return bits;
}

}  // namespace

PluginClass readClass(const Item& member) {
    const auto [type, categories, typeText, typeId, params, names] = membersOf(member, memberNames);
    PluginClass pluginClass;
    pluginClass.name = nameOf(member);
    pluginClass.typeText = pluginClass.name;
    if (type != nullptr) pluginClass.categories = readCategoryName({member, "type", *type});
    if (categories != nullptr) {
        const Item item(member, "categories", *categories);
        if (type != nullptr) item.fail("\"type\" says this already");
        pluginClass.categories = readCategoryBits(item);
    }
    if (typeText != nullptr) pluginClass.typeText = Item(member, "typeText", *typeText).text();
    if (typeId != nullptr) {
        const Item item(member, "typeId", *typeId);
        pluginClass.typeId = item.wideInteger();
        if (pluginClass.typeId == 0) item.fail("0 stands for no class");
    }
    return pluginClass;
}

void readParameters(const Item& member, PluginClass& owner, Catalogue& catalogue,
                    const InstanceNaming& instanceOf) {
    const json::Value* params = json::find(member.object(), "params");
    owner.firstParameter = catalogue.parameters.size();
    if (params != nullptr) {
        Item(member, "params", *params).forEachMember([&](const Item& parameter) {
            catalogue.parameters.push_back(readParameter(parameter, instanceOf));
            catalogue.parameters.back().name = nameOf(parameter);
        });
    }
    owner.parameterCount = catalogue.parameters.size() - owner.firstParameter;
    const json::Value* names = json::find(member.object(), "parameterNames");
    if (names == nullptr) return;
    owner.parameterNames = readNames(
        Item(member, "parameterNames", *names),
        [&](const std::string& name) { return catalogue.parameterNamed(owner, name) != nullptr; });
}

}  // namespace metagen::replay

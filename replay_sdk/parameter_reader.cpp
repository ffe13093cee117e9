#include "replay_sdk/catalogue_reader.h"

#include <utility>

#include "sdk/parameter_type.h"

namespace metagen::replay {

namespace {

enum Member : std::size_t {
    type,
    listType,
    defaultValue,
    typeCode,
    elementsCount,
    gpuSupport,
    guide,
    taggedDefault,
    memberCount
};

constexpr std::array<std::string_view, memberCount> memberNames = {
    "type",          "listType",   "defaultValue", "typeCode",
    "elementsCount", "gpuSupport", "guide",        "default"};

/// The parameter's object with its members looked up.
class ParameterNode {
public:
    explicit ParameterNode(const CatalogueNode& parameter)
        : node(parameter), members(membersOf(parameter, memberNames)) {}

    bool has(Member member) const { return members[member] != nullptr; }
    CatalogueNode at(Member member) const { return {node, memberNames[member], *members[member]}; }

    void refuseBoth(Member one, Member other) const {
        if (has(one) && has(other))
            at(other).fail("\"" + std::string(memberNames[one]) + "\" says this already");
    }

    const CatalogueNode& node;

private:
    std::array<const json::Value*, memberCount> members;
};

std::int32_t readTypeName(const CatalogueNode& name) {
    const std::int32_t code = metagen::typeCode(name.text());
    if (code == type_code::unknown) name.fail("unknown type \"" + name.text() + '"');
    return code;
}

void readType(const ParameterNode& parameter, ParameterFacts& facts) {
    constexpr std::int32_t lastList = type_code::listOffset + type_code::transformTexture;
    parameter.refuseBoth(type, typeCode);
    parameter.refuseBoth(typeCode, listType);
    if (parameter.has(typeCode)) {
        facts.typeCode = parameter.at(typeCode).integer32();
        if (facts.typeCode >= type_code::listOffset && facts.typeCode <= lastList)
            facts.elementsCount = 0;
        return;
    }
    if (!parameter.has(type)) parameter.node.fail("must have a \"type\" or a \"typeCode\"");
    facts.typeCode = readTypeName(parameter.at(type));
    if (!parameter.has(listType)) return;
    if (parameter.at(type).text() != "list")
        parameter.at(listType).fail("stands only beside the type \"list\"");
    facts.typeCode = listCodeOf(readTypeName(parameter.at(listType)));
    facts.elementsCount = 0;
}

std::uint32_t readElementsCount(const CatalogueNode& count) {
    // -1 is how the SDK's users know the count of a parameter that is no list.
    return static_cast<std::uint32_t>(count.integer(-1, noList));
}

std::unique_ptr<Guide> readGuide(const CatalogueNode& node) {
    static constexpr std::array<std::string_view, 2> names = {"float", "floats"};
    const auto [single, floats] = membersOf(node, names);
    auto guide = std::make_unique<Guide>();
    if (single != nullptr) guide->single = CatalogueNode(node, names[0], *single).single();
    if (floats == nullptr || floats->isNull()) return guide;
    guide->floats.emplace();
    CatalogueNode(node, names[1], *floats).forEachElement([&](const CatalogueNode& element) {
        guide->floats->push_back(element.single());
    });
    return guide;
}

DefaultValue readDefaultText(const CatalogueNode& text, bool isList,
                             const InstanceNaming& instanceOf) {
    // Every kind of single value is served as the text that it is written as.
    if (!isList) return {type_code::string, text.text()};
    std::optional<DefaultValue> list = listFromText(text.text(), instanceOf);
    if (!list) text.fail("no list value is written like this");
    return std::move(*list);
}

/// The values for which no default is written.
DefaultValue noDefault(bool isList) {
    if (isList) return {type_code::list, {}};
    return {type_code::string, std::string("\"\"")};
}

DefaultValue readDefault(const ParameterNode& parameter, bool isList,
                         const InstanceNaming& instanceOf) {
    parameter.refuseBoth(defaultValue, taggedDefault);
    if (parameter.has(taggedDefault)) return readTaggedDefault(parameter.at(taggedDefault));
    if (!parameter.has(defaultValue)) return noDefault(isList);
    return readDefaultText(parameter.at(defaultValue), isList, instanceOf);
}

}  // namespace

Parameter readParameter(const CatalogueNode& node, const InstanceNaming& instanceOf) {
    const ParameterNode members(node);
    Parameter parameter;
    readType(members, parameter.facts);
    if (members.has(elementsCount))
        parameter.facts.elementsCount = readElementsCount(members.at(elementsCount));
    if (members.has(gpuSupport)) parameter.facts.gpuSupport = members.at(gpuSupport).integer32();
    if (members.has(guide)) parameter.guide = readGuide(members.at(guide));
    const bool isList = parameter.facts.elementsCount != noList;
    parameter.defaultValue = readDefault(members, isList, instanceOf);
    return parameter;
}

}  // namespace metagen::replay

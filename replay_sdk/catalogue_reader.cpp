#include "replay_sdk/catalogue_reader.h"

#include <map>
#include <utility>

namespace metagen::replay {

namespace {

constexpr std::array<std::string_view, 4> documentMembers = {"plugins", "instances", "classNames",
                                                             "rendererErrorCode"};

/// Fills a catalogue from a document: the classes first, since instances name them, then the
/// instances, since defaults that name plugins add some of their own, and then the parameters.
class CatalogueReader {
public:
    explicit CatalogueReader(const CatalogueNode& root)
        : document(root), catalogue(std::make_unique<Catalogue>()) {}

    std::unique_ptr<Catalogue> read();

private:
    void readClasses(const CatalogueNode& plugins);
    void indexClasses(const CatalogueNode& plugins);
    void readAllParameters(const CatalogueNode& plugins);
    void readInstances(const CatalogueNode& instances);
    std::int64_t instanceNamed(std::string_view name);

    const CatalogueNode& document;
    std::unique_ptr<Catalogue> catalogue;
    std::int64_t nextTypeId = 0x1000;
    std::int64_t nextInstanceId = 0x100000;
    std::map<std::string, std::int64_t, std::less<>> ownInstances;  ///< made from names in texts
};

std::unique_ptr<Catalogue> CatalogueReader::read() {
    const auto [plugins, instances, names, errorCode] = membersOf(document, documentMembers);
    if (plugins == nullptr) document.fail("must have \"plugins\"");
    const CatalogueNode pluginsNode(document, "plugins", *plugins);
    readClasses(pluginsNode);
    indexClasses(pluginsNode);
    if (instances != nullptr) readInstances(CatalogueNode(document, "instances", *instances));
    readAllParameters(pluginsNode);
    if (names != nullptr)
        catalogue->classNames = readNames(
            CatalogueNode(document, "classNames", *names),
            [this](const std::string& name) { return catalogue->classNamed(name) != nullptr; });
    if (errorCode != nullptr)
        catalogue->rendererErrorCode =
            CatalogueNode(document, "rendererErrorCode", *errorCode).integer32();
    return std::move(catalogue);
}

void CatalogueReader::readClasses(const CatalogueNode& plugins) {
    catalogue->classes.reserve(plugins.object().size());
    plugins.forEachMember(
        [this](const CatalogueNode& member) { catalogue->classes.push_back(readClass(member)); });
}

void CatalogueReader::indexClasses(const CatalogueNode& plugins) {
    auto pluginClass = catalogue->classes.begin();
    plugins.forEachMember([&](const CatalogueNode& member) {
        if (const PluginClass* other = catalogue->indexTypeText(*pluginClass))
            member.fail("its type text is also that of \"" + other->name + '"');
        if (pluginClass->typeId != 0)
            if (const PluginClass* other = catalogue->indexTypeId(*pluginClass))
                member.fail("its type id is also that of \"" + other->name + '"');
        ++pluginClass;
    });
    for (PluginClass& unnumbered : catalogue->classes) {
        if (unnumbered.typeId != 0) continue;
        do unnumbered.typeId = nextTypeId++;
        while (catalogue->indexTypeId(unnumbered) != nullptr);
    }
}

void CatalogueReader::readAllParameters(const CatalogueNode& plugins) {
    const InstanceNaming instanceOf = [this](std::string_view name) { return instanceNamed(name); };
    auto pluginClass = catalogue->classes.begin();
    plugins.forEachMember([&](const CatalogueNode& member) {
        readParameters(member, *pluginClass++, *catalogue, instanceOf);
    });
}

void CatalogueReader::readInstances(const CatalogueNode& instances) {
    instances.forEachElement([this](const CatalogueNode& node) {
        if (!catalogue->instances.insert(readInstance(node, *catalogue)).second)
            node.fail("another instance has this id");
    });
}

std::int64_t CatalogueReader::instanceNamed(std::string_view name) {
    const auto known = ownInstances.find(name);
    if (known != ownInstances.end()) return known->second;
    while (catalogue->instances.contains(nextInstanceId)) ++nextInstanceId;
    PluginInstance instance;
    instance.name = name;
    catalogue->instances.emplace(nextInstanceId, std::move(instance));
    ownInstances.emplace(name, nextInstanceId);
    return nextInstanceId;
}

}  // namespace

std::unique_ptr<Catalogue> readCatalogue(std::string text) {
    const json::Document document(std::move(text));
    if (!document.isValid()) {
        throw CatalogueError("line " + std::to_string(document.errorLine()) + ": not JSON");
    }
    return CatalogueReader(CatalogueNode(document.root())).read();
}

}  // namespace metagen::replay

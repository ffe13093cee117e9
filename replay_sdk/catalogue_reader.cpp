#include "replay_sdk/catalogue_reader.h"

#include <map>
#include <utility>

#include "replay_sdk/class_reader.h"
#include "replay_sdk/instance_reader.h"
#include "replay_sdk/item.h"

namespace metagen::replay {

namespace {

constexpr std::array<std::string_view, 4> documentMembers = {"plugins", "instances", "classNames",
                                                             "rendererErrorCode"};

/// Fills a catalogue from a document: the classes first, since instances name them, then the
/// instances, since defaults that name plugins add some of their own, and then the parameters.
class CatalogueReader {
public:
    explicit CatalogueReader(const Item& root)
        : document(root), catalogue(std::make_unique<Catalogue>()) {}

    std::unique_ptr<Catalogue> read();

private:
    void readClasses(const Item& plugins);
    void indexClasses(const Item& plugins);
    void readAllParameters(const Item& plugins);
    void readInstances(const Item& instances);
    std::int64_t instanceNamed(std::string_view name);

    const Item& document;
    std::unique_ptr<Catalogue> catalogue;
    std::int64_t nextTypeId = 0x1000;
    std::int64_t nextInstanceId = 0x100000;
    std::map<std::string, std::int64_t, std::less<>> ownInstances;  ///< made from names in texts
};

std::unique_ptr<Catalogue> CatalogueReader::read() {
    const auto [plugins, instances, names, errorCode] = membersOf(document, documentMembers);
    if (plugins == nullptr) document.fail("must have \"plugins\"");
    const Item pluginsItem(document, "plugins", *plugins);
    readClasses(pluginsItem);
    indexClasses(pluginsItem);
    if (instances != nullptr) readInstances(Item(document, "instances", *instances));
    readAllParameters(pluginsItem);
    if (names != nullptr)
        catalogue->classNames = readNames(
            Item(document, "classNames", *names),
            [this](const std::string& name) { return catalogue->classNamed(name) != nullptr; });
    if (errorCode != nullptr)
        catalogue->rendererErrorCode = Item(document, "rendererErrorCode", *errorCode).integer32();
    return std::move(catalogue);
}

void CatalogueReader::readClasses(const Item& plugins) {
    catalogue->classes.reserve(plugins.object().size());
    plugins.forEachMember(
        [this](const Item& member) { catalogue->classes.push_back(readClass(member)); });
}

void CatalogueReader::indexClasses(const Item& plugins) {
    auto pluginClass = catalogue->classes.begin();
    plugins.forEachMember([&](const Item& member) {
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

void CatalogueReader::readAllParameters(const Item& plugins) {
    const InstanceNaming instanceOf = [this](std::string_view name) { return instanceNamed(name); };
    auto pluginClass = catalogue->classes.begin();
    plugins.forEachMember([&](const Item& member) {
        readParameters(member, *pluginClass++, *catalogue, instanceOf);
    });
}

void CatalogueReader::readInstances(const Item& instances) {
    instances.forEachElement([this](const Item& item) {
        if (!catalogue->instances.insert(readInstance(item, *catalogue)).second)
            item.fail("another instance has this id");
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
    return CatalogueReader(Item(document.root())).read();
}

}  // namespace metagen::replay

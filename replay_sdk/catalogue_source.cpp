// The source of answers that serves a catalogue, and where its file is looked for.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include "replay_sdk/answer_source.h"
#include "replay_sdk/catalogue_node.h"
#include "replay_sdk/catalogue_reader.h"
#include "replay_sdk/platform.h"

namespace metagen::replay {

namespace {

/// The error code of a renderer that isn't created because its catalogue is missing or wrong.
constexpr std::int32_t badCatalogueErrorCode = -1;

class CatalogueSource : public AnswerSource {
public:
    explicit CatalogueSource(std::unique_ptr<Catalogue> read) : catalogue(std::move(read)) {}

    std::optional<std::int32_t> creationError() const override {
        return catalogue->rendererErrorCode;
    }
    std::vector<std::int64_t> typeIds() const override;
    std::optional<TextVector> classNames() const override;
    std::int64_t typeIdOfClass(std::string_view className) const override {
        const PluginClass* known = catalogue->classNamed(className);
        return known == nullptr ? 0 : known->typeId;
    }
    const char* typeText(std::int64_t typeId) const override {
        const PluginClass* known = catalogue->classOfTypeId(typeId);
        return known == nullptr ? nullptr : known->typeText.c_str();
    }
    std::uint64_t categories(std::string_view typeText) const override {
        const PluginClass* known = catalogue->classOfTypeText(typeText);
        return known == nullptr ? 0 : known->categories;
    }
    std::optional<TextVector> parameterNames(std::string_view typeText) const override;
    std::optional<std::size_t> parameter(std::string_view typeText,
                                         std::string_view name) const override;
    std::size_t parameterCount() const override { return catalogue->parameters.size(); }
    ParameterFacts facts(std::size_t parameter) const override {
        return catalogue->parameters[parameter].facts;
    }
    const DefaultValue& defaultValue(std::size_t parameter) const override {
        return catalogue->parameters[parameter].defaultValue;
    }
    const Guide* guide(std::size_t parameter) const override {
        return catalogue->parameters[parameter].guide.get();
    }
    const PluginInstance* instance(std::int64_t pluginId) const override {
        const auto known = catalogue->instances.find(pluginId);
        return known == catalogue->instances.end() ? nullptr : &known->second;
    }

private:
    std::unique_ptr<Catalogue> catalogue;
};

template <typename Iterator>
std::optional<TextVector> textVector(const NameList& list, Iterator first, Iterator last) {
    if (list.form == NameList::Form::null) return std::nullopt;
    TextVector texts;
    if (list.form == NameList::Form::everything)
        for (; first != last; ++first) texts.append(first->name);
    for (const Text& name : list.names) {
        if (name) {
            texts.append(*name);
        } else {
            texts.appendNull();
        }
    }
    return texts;
}

std::vector<std::int64_t> CatalogueSource::typeIds() const {
    std::vector<std::int64_t> ids;
    ids.reserve(catalogue->classes.size());
    for (const PluginClass& pluginClass : catalogue->classes) ids.push_back(pluginClass.typeId);
    return ids;
}

std::optional<TextVector> CatalogueSource::classNames() const {
    return textVector(catalogue->classNames, catalogue->classes.begin(), catalogue->classes.end());
}

std::optional<TextVector> CatalogueSource::parameterNames(std::string_view typeText) const {
    const PluginClass* known = catalogue->classOfTypeText(typeText);
    if (known == nullptr) return std::nullopt;
    const Parameter* first = catalogue->parameters.data() + known->firstParameter;
    return textVector(known->parameterNames, first, first + known->parameterCount);
}

std::optional<std::size_t> CatalogueSource::parameter(std::string_view typeText,
                                                      std::string_view name) const {
    const PluginClass* owner = catalogue->classOfTypeText(typeText);
    const Parameter* known = owner == nullptr ? nullptr : catalogue->parameterNamed(*owner, name);
    if (known == nullptr) return std::nullopt;
    return static_cast<std::size_t>(known - catalogue->parameters.data());
}

void report(const std::string& path, const std::string& problem) {
    static_cast<void>(std::fprintf(stderr, "replay SDK: %s: %s\n", path.c_str(), problem.c_str()));
}

std::string cataloguePath() {
    std::string path = environmentVariable("QYRA_REPLAY_CATALOGUE");
    return path.empty() ? libraryFolder() + "catalogue.json" : path;
}

std::optional<std::string> readFile(const std::string& path) {
    const File file = openBytesForReading(path);
    if (!file) {
        report(path, std::string("can't be opened: ") + std::strerror(errno));
        return std::nullopt;
    }
    std::optional<std::string> text = readAll(file.get());
    if (!text) report(path, std::string("can't be read: ") + std::strerror(errno));
    return text;
}

/// The catalogue of the file; nothing after a report of what is wrong.
std::unique_ptr<Catalogue> openCatalogue() {
    const std::string path = cataloguePath();
    std::optional<std::string> text = readFile(path);
    if (!text) return nullptr;
    try {
        return readCatalogue(std::move(*text));
    } catch (const CatalogueError& error) {
        report(path, error.what());
        return nullptr;
    }
}

}  // namespace

std::unique_ptr<AnswerSource> openAnswerSource() {
    std::unique_ptr<Catalogue> catalogue = openCatalogue();
    if (!catalogue) {
        catalogue = std::make_unique<Catalogue>();
        catalogue->rendererErrorCode = badCatalogueErrorCode;
    }
    return std::make_unique<CatalogueSource>(std::move(catalogue));
}

}  // namespace metagen::replay

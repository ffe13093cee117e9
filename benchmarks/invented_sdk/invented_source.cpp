// The source of answers of the computed library: the invented SDK of the extent that the
// environment names.
#include <charconv>
#include <optional>
#include <vector>

#include "benchmarks/invented_sdk/invented_sdk.h"
#include "replay_sdk/platform.h"

namespace metagen::replay {

namespace {

using invented::InventedParameter;
using invented::InventedSdk;

class InventedSource : public AnswerSource {
public:
    explicit InventedSource(invented::Extent extent);

    std::optional<std::int32_t> creationError() const override { return std::nullopt; }
    std::vector<std::int64_t> typeIds() const override;
    std::optional<TextVector> classNames() const override;
    std::int64_t typeIdOfClass(std::string_view className) const override {
        return static_cast<std::int64_t>(invented::classNumber(className)) + 1;
    }
    const char* typeText(std::int64_t typeId) const override {
        return names.at(static_cast<std::size_t>(typeId - 1)).c_str();
    }
    std::uint64_t categories(std::string_view typeText) const override;
    std::optional<TextVector> parameterNames(std::string_view typeText) const override;
    std::optional<std::size_t> parameter(std::string_view typeText,
                                         std::string_view name) const override;
    std::size_t parameterCount() const override { return sdk.parameterCount(); }
    ParameterFacts facts(std::size_t parameter) const override;
    const DefaultValue& defaultValue(std::size_t parameter) const override {
        return known(parameter).defaultValue;
    }
    const Guide* guide(std::size_t parameter) const override {
        const std::optional<Guide>& guide = known(parameter).guide;
        return guide ? &*guide : nullptr;
    }
    const PluginInstance* instance(std::int64_t pluginId) const override;

private:
    /// All about the parameter that was asked for last is kept until another one is asked for.
    const InventedParameter& known(std::size_t parameter) const;

    InventedSdk sdk;
    std::vector<std::string> names;  ///< of the classes, by their numbers
    std::vector<PluginInstance> instances;
    mutable std::optional<std::size_t> current;
    mutable InventedParameter currentParameter;
    mutable std::size_t askedClass = 0;
    mutable std::vector<invented::ListedParameter> listed;  ///< of the asked class
    mutable std::size_t nextPosition = 0;  ///< callers ask in the order of the names
};

InventedSource::InventedSource(invented::Extent extent) : sdk(extent) {
    names.reserve(sdk.classCount());
    for (std::size_t number = 0; number < sdk.classCount(); ++number)
        names.push_back(sdk.className(number));
    for (std::int64_t id = 1; id <= invented::instanceCount; ++id)
        instances.push_back(invented::inventInstance(id));
}

std::vector<std::int64_t> InventedSource::typeIds() const {
    std::vector<std::int64_t> ids(sdk.classCount());
    for (std::size_t number = 0; number < ids.size(); ++number)
        ids[number] = static_cast<std::int64_t>(number) + 1;
    return ids;
}

std::optional<TextVector> InventedSource::classNames() const {
    TextVector texts;
    for (const std::string& name : names) texts.append(name);
    return texts;
}

std::uint64_t InventedSource::categories(std::string_view typeText) const {
    const int bit = sdk.category(invented::classNumber(typeText)).bit;
    return bit < 0 ? 0 : std::uint64_t{1} << static_cast<unsigned>(bit);
}

std::optional<TextVector> InventedSource::parameterNames(std::string_view typeText) const {
    askedClass = invented::classNumber(typeText);
    listed = sdk.parametersOf(askedClass);
    nextPosition = 0;
    TextVector texts;
    for (const auto& parameter : listed) texts.append(parameter.name);
    return texts;
}

std::optional<std::size_t> InventedSource::parameter(std::string_view typeText,
                                                     std::string_view name) const {
    if (invented::classNumber(typeText) != askedClass) return std::nullopt;
    for (std::size_t tried = 0; tried < listed.size(); ++tried) {
        const auto& next = listed[nextPosition++ % listed.size()];
        if (next.name == name) return next.number;
    }
    return std::nullopt;
}

ParameterFacts InventedSource::facts(std::size_t parameter) const {
    const InventedParameter& asked = known(parameter);
    return {asked.typeCode, isListCode(asked.typeCode) ? 0 : noList, 1};
}

const PluginInstance* InventedSource::instance(std::int64_t pluginId) const {
    const bool isKnown = pluginId >= 1 && pluginId <= invented::instanceCount;
    return isKnown ? &instances[static_cast<std::size_t>(pluginId - 1)] : nullptr;
}

const InventedParameter& InventedSource::known(std::size_t parameter) const {
    if (current != parameter) {
        currentParameter = sdk.parameter(parameter);
        current = parameter;
    }
    return currentParameter;
}

template <typename Number>
Number numberOfVariable(const char* name, Number otherwise) {
    const std::string text = environmentVariable(name);
    std::from_chars(text.data(), text.data() + text.size(), otherwise);
    return otherwise;
}

}  // namespace

std::unique_ptr<AnswerSource> openAnswerSource() {
    return std::make_unique<InventedSource>(
        invented::Extent{numberOfVariable("QYRA_INVENTED_SCALE", 1.0),
                         numberOfVariable("QYRA_INVENTED_SEED", std::uint64_t{1}),
                         numberOfVariable("QYRA_INVENTED_REVISION", 1)});
}

}  // namespace metagen::replay

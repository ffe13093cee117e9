#include "metadata/live_metadata.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "metadata/category.h"
#include "metadata/default_value_query.h"
#include "sdk/entry_point_table.h"
#include "support/process_end.h"

namespace metagen {

namespace {

/// The SDK's element count of a parameter that is no list: all bits set.
constexpr std::uint32_t noList = 0xFFFFFFFFU;

/// Codes of what the SDK lists among the parameters but no host can set.
constexpr std::array<std::int32_t, 7> unrecordedCodes = {1000, 1001, 1002, 1003, 1004, 1005, 10000};

bool isRecorded(std::int32_t code) {
    return std::ranges::find(unrecordedCodes, code) == unrecordedCodes.end();
}

ParameterRecord buildParameter(const void* definition, std::int32_t code) {
    const std::uint32_t elements =
        entryPoints().Qyra_PluginUtils_getPropertyElementsCount(definition);
    return {.isList = elements != noList,
            .code = code,
            .defaultValue = queryDefaultValue(definition, code)};
}

PluginRecord buildParameters(const Renderer& renderer, const std::string& typeText) {
    PluginRecord plugin;
    for (std::string& name : renderer.parameterNames(typeText)) {
        if (plugin.parameters.contains(name)) continue;
        const void* definition = renderer.parameterDefinition(typeText, name);
        if (definition == nullptr) continue;  // a name that is null, or that the SDK doesn't know
        // Asked of every definition, as the SDK's users do; the base document has no place for it.
        static_cast<void>(renderer.gpuSupport(typeText, definition));
        const std::int32_t code = entryPoints().Qyra_PluginUtils_getPropertyType(definition);
        if (!isRecorded(code)) continue;
        plugin.parameters.emplace(std::move(name), buildParameter(definition, code));
    }
    return plugin;
}

[[noreturn]] void reportConflict(const std::string& typeText, std::uint32_t bits) {
    std::string message = "Plugin type: " + typeText + " has multiple incompatible categories:\n";
    for (int code = 0; code < 32; ++code) {
        if ((bits >> static_cast<unsigned>(code) & 1U) == 0) continue;
        message += '\t';
        message += categoryName(code).value_or("");
        message += '\n';
    }
    print(message);
    exitWithStatus(failureStatus);
}

PluginRecord buildPlugin(const Renderer& renderer, const std::string& className) {
    const std::string typeText = renderer.typeText(className);
    PluginRecord plugin = buildParameters(renderer, typeText);
    const CategoryResolution category = resolveCategory(renderer.categoryBits(typeText));
    if (category.conflict) reportConflict(typeText, category.conflictingBits);
    plugin.category = category.name;
    return plugin;
}

}  // namespace

LiveMetadata buildLiveMetadata(const Renderer& renderer) {
    LiveMetadata metadata;
    for (std::string& className : renderer.pluginClassNames()) {
        // A class whose name is taken is built all the same: its errors count.
        PluginRecord plugin = buildPlugin(renderer, className);
        metadata.try_emplace(std::move(className), std::move(plugin));
    }
    return metadata;
}

}  // namespace metagen

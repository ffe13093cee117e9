#include "metadata/live_metadata.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>
#include <vector>

#include "metadata/category.h"
#include "metadata/default_value_query.h"
#include "metadata/key_order.h"
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

/// For each name its place among the different ones, in the combined order.
std::vector<std::size_t> placesInOrder(const std::vector<std::string>& names) {
    std::vector<std::size_t> order(names.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto nameOf = [&names](std::size_t index) { return std::string_view(names[index]); };
    std::ranges::sort(order, CombinedKeyLess(), nameOf);
    std::vector<std::size_t> places(names.size());
    std::size_t place = 0;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (CombinedKeyLess()(nameOf(order[i - 1]), nameOf(order[i]))) ++place;
        places[order[i]] = place;
    }
    return places;
}

std::vector<NamedParameter> buildParameters(const Renderer& renderer, const std::string& typeText) {
    std::vector<std::string> names = renderer.parameterNames(typeText);
    const std::vector<std::size_t> places = placesInOrder(names);
    std::vector<NamedParameter> parameters(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        NamedParameter& parameter = parameters[places[i]];
        if (isRecorded(parameter.record.code)) continue;
        const void* definition = renderer.parameterDefinition(typeText, names[i]);
        if (definition == nullptr) continue;  // a name that is null, or that the SDK doesn't know
        // Asked of every definition, as the SDK's users do; the base document has no place for it.
        static_cast<void>(renderer.gpuSupport(typeText, definition));
        const std::int32_t code = entryPoints().Qyra_PluginUtils_getPropertyType(definition);
        if (!isRecorded(code)) continue;
        parameter = {std::move(names[i]), buildParameter(definition, code)};
    }
    std::erase_if(parameters, [](const NamedParameter& parameter) {
        return !isRecorded(parameter.record.code);
    });
    return parameters;
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
    std::vector<NamedParameter> parameters = buildParameters(renderer, typeText);
    const CategoryResolution category = resolveCategory(renderer.categoryBits(typeText));
    if (category.conflict) reportConflict(typeText, category.conflictingBits);
    return {.category = category.name, .parameters = std::move(parameters)};
}

}  // namespace

void visitPlugins(const Renderer& renderer, const PluginVisitor& visit) {
    for (std::string& className : renderer.pluginClassNames()) {
        PluginRecord plugin = buildPlugin(renderer, className);
        visit(std::move(className), std::move(plugin));
    }
}

}  // namespace metagen

#include "metadata/live_metadata.h"

#include <algorithm>
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

/// Not what the SDK lists among the parameters although no host can set it, nor what has no type.
bool isRecorded(std::int32_t code) {
    constexpr std::int32_t firstUnset = 1000;
    constexpr std::int32_t lastUnset = 1005;
    return (code < firstUnset || code > lastUnset) && code != type_code::unspecified;
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
    struct Key {
        std::uint64_t prefix;
        std::size_t index;
    };
    std::vector<Key> order;
    order.reserve(names.size());
    for (const std::string& name : names) order.push_back({combinedKeyPrefix(name), order.size()});
    const auto less = [&names](const Key& left, const Key& right) {
        if (left.prefix != right.prefix) return left.prefix < right.prefix;
        return CombinedKeyLess()(names[left.index], names[right.index]);
    };
    std::ranges::sort(order, less);
    std::vector<std::size_t> places(names.size());
    std::size_t place = 0;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (less(order[i - 1], order[i])) ++place;
        places[order[i].index] = place;
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

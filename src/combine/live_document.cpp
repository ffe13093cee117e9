#include "combine/live_document.h"

#include <algorithm>
#include <utility>

#include "metadata/parameter_description.h"
#include "metadata/parameter_type.h"
#include "support/byte_set.h"

namespace metagen {

namespace {

/// What a name may consist of to mean the same within the quotes of a JSON text.
constexpr ByteSet standsForItself([](unsigned char byte) {
    return byte >= 0x20 && byte != '"' && byte != '\\';
});

json::Value text(std::string_view content) { return json::Value(std::string(content)); }

json::Value parameterValue(const ParameterDescription& description) {
    json::Object members;
    const auto append = [&members](const char* key, json::Value value) {
        members.emplace_hint(members.end(), key, std::move(value));  // in the order of the keys
    };
    if (description.defaultText) append("defaultValue", text(*description.defaultText));
    if (!description.listType.empty()) append("listType", text(description.listType));
    append("type", text(description.type));
    return json::Value(std::move(members));
}

json::Value pluginValue(PluginRecord plugin, std::string& buffer) {
    json::Object parameters;
    for (NamedParameter& parameter : plugin.parameters) {
        parameters.emplace_hint(parameters.end(), std::move(parameter.name),
                                parameterValue(describe(parameter.record, buffer)));
    }
    json::Object members;
    members.emplace("params", json::Value(std::move(parameters)));
    members.emplace("type", plugin.category ? text(*plugin.category) : json::Value());
    return json::Value(std::move(members));
}

}  // namespace

void LiveDocument::add(std::string className, PluginRecord plugin) {
    if (names.contains(className)) return;
    faithful = faithful && std::ranges::all_of(className, standsForItself);
    for (const auto& [name, parameter] : plugin.parameters) {
        faithful = faithful && std::ranges::all_of(name, standsForItself);
        if (!hasTypeName(parameter.code)) namelessCode = parameter.code;
    }
    if (namelessCode) plugin.parameters.clear();  // the document will not be finished
    const auto place = plugins.emplace_hint(plugins.end(), std::move(className),
                                            pluginValue(std::move(plugin), buffer));
    names.insert(place->first);
}

json::Value LiveDocument::take() {
    if (namelessCode) static_cast<void>(typeName(*namelessCode));  // ends the process
    json::Object document;
    document.emplace("plugins", json::Value(std::move(plugins)));
    return json::Value(std::move(document));
}

}  // namespace metagen

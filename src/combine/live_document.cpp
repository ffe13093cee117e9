#include "combine/live_document.h"

#include <utility>

#include "metadata/base_document.h"
#include "metadata/parameter_description.h"
#include "metadata/parameter_type.h"
#include "support/special_bytes.h"

namespace metagen {

namespace {

/// Whether the name means the same within the quotes of a JSON text.
bool standsForItself(std::string_view name) {
    const char* const end = name.data() + name.size();
    return findSpecial<'"', '\\'>(name.data(), end) == end;
}

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

/// Appends what a combined document has of `parameterValue`.
void appendCombinedParameter(std::string& out, const ParameterDescription& description) {
    out += "{\"type\":";
    json::appendCompactText(out, description.type);
    if (description.defaultText) {
        out += ",\"defaultValue\":";
        json::appendCompactText(out, *description.defaultText);
    }
    if (!description.listType.empty()) {
        out += ",\"listType\":";
        json::appendCompactText(out, description.listType);
    }
    out += '}';
}

}  // namespace

NamedPlugins::NamedPlugins(const json::Value& stripped) {
    if (stripped.is<json::Object>()) plugins = json::find(json::asObject(stripped), "plugins");
}

bool NamedPlugins::contains(const std::string& plugin) const {
    if (plugins == nullptr) return false;
    return !plugins->is<json::Object>() || json::asObject(*plugins).contains(plugin);
}

void LiveDocumentBuilder::add(std::string className, PluginRecord plugin) {
    if (names.contains(className)) return;
    faithful = faithful && standsForItself(className);
    for (const auto& [name, parameter] : plugin.parameters) {
        faithful = faithful && standsForItself(name);
        if (!hasTypeName(parameter.code)) namelessCode = parameter.code;
    }
    if (namelessCode) plugin.parameters.clear();  // the document will not be finished
    if (wanted.contains(className)) {
        json::Value value = pluginValue(std::move(plugin), defaultTextBuffer);
        names.insert(plugins.emplace(std::move(className), std::move(value)).first->first);
    } else {
        pluginBuffer.clear();
        appendPlugin(pluginBuffer, plugin, appendCombinedParameter, defaultTextBuffer);
        // A copy of the text, which takes no more room than it needs.
        names.insert(otherPlugins.emplace(std::move(className), pluginBuffer).first->first);
    }
}

LiveDocument LiveDocumentBuilder::take() {
    if (namelessCode) static_cast<void>(typeName(*namelessCode));  // ends the process
    json::Object document;
    document.emplace("plugins", json::Value(std::move(plugins)));
    return {json::keepToProcessEnd(json::Value(std::move(document))), std::move(otherPlugins)};
}

}  // namespace metagen

#include "combine/checks.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sdk/parameter_type.h"
#include "support/end_run.h"

namespace metagen {

namespace {

/// The names in both objects, in byte order.
std::vector<std::string_view> commonNames(json::Object params, json::Object userData) {
    std::vector<std::string_view> names;
    auto parameter = params.begin();
    auto entry = userData.begin();
    while (parameter != params.end() && entry != userData.end()) {
        const int order = parameter->key.compare(entry->key);
        if (order == 0) names.push_back(parameter->key);
        if (order <= 0) ++parameter;
        if (order >= 0) ++entry;
    }
    return names;
}

void reportEntries(std::string_view plugin, json::Object entries) {
    for (const auto& [name, entry] : entries) {
        if (!lacksDefault(json::asObject(entry))) continue;
        // The spelling is deliberate: scripts look for it. There is no type and no value to show.
        std::string line(plugin);
        line.append("::").append(name).append(" : Unexpected defautValue format for type  = \n");
        print(line);
    }
}

}  // namespace

std::vector<std::string_view> clashingNames(const json::Value& plugin) {
    const auto members = plugin.object();
    if (!members) return {};
    const json::Value* params = json::find(*members, "params");
    const json::Value* userData = json::find(*members, "userData");
    if (params == nullptr || userData == nullptr) return {};
    return commonNames(json::asObject(*params), json::asObject(*userData));
}

// One walk along the members, because this is asked of every parameter of the document.
bool lacksDefault(json::Object entry) {
    std::optional<std::string_view> listType;
    bool hasTypeOrDefault = false;
    for (const auto& [key, value] : entry) {
        if (key == "type" || key == "defaultValue") {
            static_cast<void>(json::asText(value));  // anything but a text is a mismatch
            hasTypeOrDefault = true;
        } else if (key == "listType") {
            listType = json::asText(value);
        }
    }
    if (hasTypeOrDefault || !listType) return false;
    const ParameterType* type = findType(typeCode(*listType));
    return type != nullptr && type->isReadable;
}

void checkNamesAndDefaults(json::Object document) {
    json::Object plugins = json::asObject(json::at(document, "plugins"));
    const bool clash = reportNameClashes(plugins);
    reportUnexpectedDefaults(plugins);
    if (clash) endRun(brokenMetadataStatus, "");
}

bool reportNameClashes(json::Object plugins) {
    bool found = false;
    for (const auto& [name, plugin] : plugins) {
        const std::vector<std::string_view> names = clashingNames(plugin);
        if (names.empty()) continue;
        std::string line(name);
        line += " has duplicated named param and userdata - ";
        for (const std::string_view clashing : names) line.append(clashing).append(1, ' ');
        print(line += '\n');
        found = true;
    }
    return found;
}

void reportUnexpectedDefaults(json::Object plugins) {
    for (const auto& [name, plugin] : plugins) {
        for (const char* key : {"params", "userData"}) {
            const json::Value* entries = json::find(json::asObject(plugin), key);
            if (entries != nullptr) reportEntries(name, json::asObject(*entries));
        }
    }
}

}  // namespace metagen

#include "combine/name_checks.h"

#include <cstdint>
#include <string>

#include "metadata/default_value_parser.h"
#include "metadata/parameter_type.h"
#include "support/process_end.h"

namespace metagen {

namespace {

/// The names in both objects, in byte order, each followed by a blank.
std::string commonNames(const json::Object& params, const json::Object& userData) {
    std::string names;
    auto parameter = params.begin();
    auto entry = userData.begin();
    while (parameter != params.end() && entry != userData.end()) {
        const int order = parameter->first.compare(entry->first);
        if (order == 0) names += parameter->first + ' ';
        if (order <= 0) ++parameter;
        if (order >= 0) ++entry;
    }
    return names;
}

std::string clashingNames(const json::Value& plugin) {
    if (!plugin.is<json::Object>()) return "";
    const json::Value* params = json::find(json::asObject(plugin), "params");
    const json::Value* userData = json::find(json::asObject(plugin), "userData");
    if (params == nullptr || userData == nullptr) return "";
    return commonNames(json::asObject(*params), json::asObject(*userData));
}

/// Whether the entry lacks the default value that its list type asks for. One walk along the
/// members, because this is asked of every parameter of the document.
bool lacksDefault(const json::Object& entry) {
    const std::string* listType = nullptr;
    bool hasTypeOrDefault = false;
    for (const auto& [key, value] : entry) {
        if (key == "type" || key == "defaultValue") {
            static_cast<void>(json::asString(value));  // anything but a text is a mismatch
            hasTypeOrDefault = true;
        } else if (key == "listType") {
            listType = &json::asString(value);
        }
    }
    if (hasTypeOrDefault || listType == nullptr) return false;
    return hasDefaultValueReader(typeCode(*listType, ""));
}

void reportEntries(const std::string& plugin, const json::Object& entries) {
    for (const auto& [name, entry] : entries) {
        if (!lacksDefault(json::asObject(entry))) continue;
        // The spelling is deliberate: scripts look for it. There is no type and no value to show.
        std::string line = plugin;
        line.append("::").append(name).append(" : Unexpected defautValue format for type  = \n");
        print(line);
    }
}

}  // namespace

void checkNamesAndDefaults(const json::Object& document) {
    const json::Object& plugins = json::asObject(json::at(document, "plugins"));
    const bool clash = reportNameClashes(plugins);
    reportUnexpectedDefaults(plugins);
    if (clash) exitWithStatus(brokenMetadataStatus);
}

bool reportNameClashes(const json::Object& plugins) {
    bool found = false;
    for (const auto& [name, plugin] : plugins) {
        const std::string names = clashingNames(plugin);
        if (names.empty()) continue;
        std::string line = name;
        line.append(" has duplicated named param and userdata - ").append(names).append("\n");
        print(line);
        found = true;
    }
    return found;
}

void reportUnexpectedDefaults(const json::Object& plugins) {
    for (const auto& [name, plugin] : plugins) {
        for (const char* key : {"params", "userData"}) {
            const json::Value* entries = json::find(json::asObject(plugin), key);
            if (entries != nullptr) reportEntries(name, json::asObject(*entries));
        }
    }
}

}  // namespace metagen

#include "model/model_reader.h"

#include <algorithm>
#include <utility>

namespace metagen {

namespace {

const json::Object noMembers;

/// The member as an object; an empty one when the plugin lacks it.
const json::Object& objectOrNone(const json::Object& plugin, const std::string& key) {
    const json::Value* member = json::find(plugin, key);
    return member == nullptr ? noMembers : json::asObject(*member);
}

void readParams(const json::Object& members, std::uint32_t originFlag,
                NamedEntries<ParamEntry>& params) {
    params.reserve(params.size() + members.size());
    for (const auto& [name, value] : members) {
        params.push_back({name, readParamEntry(json::asObject(value), originFlag)});
    }
}

/// Puts user data, which follow the parameters, in order among them. Of equal names the
/// parameter stays.
void mergeUserData(NamedEntries<ParamEntry>& params, std::size_t paramCount) {
    if (params.size() == paramCount) return;
    const auto middle = params.begin() + static_cast<std::ptrdiff_t>(paramCount);
    std::inplace_merge(params.begin(), middle, params.end(),
                       [](const auto& left, const auto& right) { return left.name < right.name; });
    const auto repeated =
        std::unique(params.begin(), params.end(),
                    [](const auto& left, const auto& right) { return left.name == right.name; });
    params.erase(repeated, params.end());
}

PluginEntry readForMeta(const json::Object& plugin) {
    PluginEntry entry;
    readParams(objectOrNone(plugin, "params"), 0, entry.params);
    const std::size_t paramCount = entry.params.size();
    readParams(objectOrNone(plugin, "userData"), param_flag::fromUserData, entry.params);
    mergeUserData(entry.params, paramCount);
    const json::Value* type = json::find(plugin, "type");
    if (type != nullptr && type->is<std::string>()) entry.category = &json::asString(*type);
    return entry;
}

PluginEntry readForHandlers(const json::Object& plugin) {
    PluginEntry entry;
    const json::Value* params = json::find(plugin, "params");
    const json::Value* userData = json::find(plugin, "userData");
    if (params == nullptr || userData == nullptr) return entry;
    const json::Object& userDataMembers = json::asObject(*userData);
    for (const auto& [name, value] : json::asObject(*params)) {
        if (!value.is<json::Object>()) continue;
        ParamEntry param = readHandlerEntry(json::asObject(value), name, userDataMembers);
        if (param.handlerState == 1) entry.params.push_back({name, std::move(param)});
    }
    return entry;
}

}  // namespace

PluginEntry readPluginEntry(const json::Value& plugin, std::string_view mode) {
    if (mode == "meta") return readForMeta(json::asObject(plugin));
    if (mode == "handler") return readForHandlers(json::asObject(plugin));
    return {};
}

CombinedModel readCombinedModel(const json::Object& plugins, std::string_view mode) {
    CombinedModel model;
    const bool everyPlugin = mode == "meta";
    for (const auto& [name, value] : plugins) {
        PluginEntry plugin = readPluginEntry(value, mode);
        if (everyPlugin || !plugin.params.empty()) model.push_back({name, std::move(plugin)});
    }
    return model;
}

}  // namespace metagen

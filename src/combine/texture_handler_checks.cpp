#include "combine/checks.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/handlers.h"
#include "support/end_run.h"

namespace metagen {

namespace {

using handler_kind::color;
using handler_kind::floatNumber;

// What both handlers have for user data, in the order in which a name is matched against them.
constexpr std::size_t colorValue = 0;
constexpr std::size_t floatValue = 1;
constexpr std::size_t firstShared = 2;  // from here on both need all of them
constexpr auto suffixes = [] {
    std::array<std::string_view, firstShared + color.expected.size()> all = {};
    all[colorValue] = color.value;
    all[floatValue] = floatNumber.value;
    std::ranges::copy(color.expected, all.begin() + firstShared);
    return all;
}();

/// For each suffix, whether the parameter has that user data.
using UserDataOfParameter = std::array<bool, suffixes.size()>;

UserDataOfParameter findUserData(json::Object userData, std::string_view parameter) {
    UserDataOfParameter found = {};
    std::string name = std::string(parameter) + '_';
    const auto next = std::ranges::lower_bound(userData, name, {}, &json::Member::key);
    if (next == userData.end() || !next->key.starts_with(name)) return found;
    for (std::size_t i = 0; i < suffixes.size(); ++i) {
        name.resize(parameter.size());
        found[i] = json::find(userData, name.append(suffixes[i])) != nullptr;
    }
    return found;
}

/// User data that looks like a handler's: the parameter and the suffix that its name is made of.
struct HandlerData {
    std::string_view parameter;
    std::string_view suffix;
};

/// The first handler user data of each parameter name that any of it has, in the order of these
/// names.
std::vector<HandlerData> findHandlerData(json::Object userData) {
    std::vector<HandlerData> found;
    for (const json::Member& member : userData) {
        const std::string_view name = member.key;
        const auto suffix = std::ranges::find_if(
            suffixes, [name](std::string_view candidate) { return name.ends_with(candidate); });
        if (suffix == suffixes.end()) continue;
        found.push_back({name.substr(0, name.size() - suffix->size()), *suffix});
    }
    std::ranges::stable_sort(found, {}, &HandlerData::parameter);
    const auto sameParameter = [](const HandlerData& left, const HandlerData& right) {
        return left.parameter == right.parameter;
    };
    found.erase(std::unique(found.begin(), found.end(), sameParameter), found.end());
    return found;
}

class PluginCheck {
public:
    PluginCheck(std::string_view pluginName, json::Object pluginParams, json::Object pluginUserData)
        : plugin(pluginName), params(pluginParams), userData(pluginUserData) {}

    std::vector<HandlerFailure> run() {
        for (const auto& [name, value] : params) checkParameter(name, value);
        if (hasHandler && json::find(userData, "texture_multiplier_mode") == nullptr) {
            // The double quote at the end is deliberate: it belongs to the known text.
            failures.push_back({HandlerFault::noMultiplierMode,
                                {},
                                std::string(plugin) +
                                    ": the plugin has float texture handler(s) but no "
                                    "'texture_multiplier_mode' \""});
        }
        for (const HandlerData& data : findHandlerData(userData)) checkHandlerData(data);
        return std::move(failures);
    }

private:
    void checkParameter(std::string_view name, const json::Value& value) {
        const UserDataOfParameter found = findUserData(userData, name);
        if (std::ranges::find(found, true) == found.end()) return;
        const json::Value* handler = json::find(json::asObject(value), "handler");
        if (handler == nullptr) {
            return record(HandlerFault::noHandler, name,
                          "Userdata for handler exist, but no handler was defined");
        }
        hasHandler = true;
        if (std::find(found.begin() + firstShared, found.end(), false) != found.end()) {
            record(HandlerFault::missingTextureData, name, "_tex_* user data is missing");
        }
        if (found[colorValue] == found[floatValue]) {
            const std::string parameter(name);
            record(HandlerFault::notOneValue, name,
                   "expecting exactly one " + parameter + "_float or " + parameter + "_color");
        }
        // User data for a float wins over that for a colour.
        if (found[floatValue]) return expectHandler(name, *handler, floatNumber);
        if (found[colorValue]) return expectHandler(name, *handler, color);
    }

    void expectHandler(std::string_view name, const json::Value& handler,
                       const HandlerKind& expected) {
        const auto word = handler.text();
        if (!word || *word == expected.word) return;
        record(HandlerFault::otherHandler, name,
               "mismatch handler type \"" + std::string(*word) + "\", expecting \"" +
                   std::string(expected.word) + '"');
    }

    void checkHandlerData(const HandlerData& data) {
        const std::string_view name = data.parameter;
        const json::Value* parameter = json::find(params, name);
        if (parameter == nullptr) {
            return record(HandlerFault::noParameter, name,
                          std::string("Texture handler userdata seem to be defined: ")
                              .append(name)
                              .append(data.suffix));
        }
        const json::Value* handler = json::find(json::asObject(*parameter), "handler");
        if (handler == nullptr) {
            return record(HandlerFault::noHandler, name, "Expecting a handler");
        }
        if (const auto word = handler->text()) checkSuffix(name, *word, data.suffix);
    }

    /// "_color" comes first of all suffixes in byte order, then "_float". So the suffix at hand,
    /// which is the first, tells whether these two exist.
    void checkSuffix(std::string_view name, std::string_view handler, std::string_view suffix) {
        if (handler == color.word) {
            if (suffix == color.value) return;
            record(HandlerFault::noValue, name,
                   "Color texture frame handler defined, but no \"_color\" user data");
        } else if (handler == floatNumber.word) {
            if (suffix == floatNumber.value) return;
            record(HandlerFault::noValue, name,
                   "Float texture frame handler defined, but no \"_float\" user data");
        } else {
            record(HandlerFault::otherHandler, name,
                   "Texture frame handler user data exist, but no handler defined");
        }
    }

    void record(HandlerFault fault, std::string_view name, std::string_view text) {
        failures.push_back(
            {fault, name, std::string(plugin).append("::").append(name).append(": ").append(text)});
    }

    std::string_view plugin;
    json::Object params;
    json::Object userData;
    std::vector<HandlerFailure> failures;
    bool hasHandler = false;
};

}  // namespace

std::vector<HandlerFailure> handlerFailures(std::string_view plugin, json::Object params,
                                            json::Object userData) {
    return PluginCheck(plugin, params, userData).run();
}

void checkTextureHandlers(json::Object document, CombineReport& report) {
    const json::Value* plugins = json::find(document, "plugins");
    if (plugins == nullptr) {
        endRun(failureStatus, "Combined Json has no Plugins!\n");
    }
    for (const auto& [name, plugin] : json::asObject(*plugins)) {
        const auto members = plugin.object();
        if (!members) continue;
        const json::Value* params = json::find(*members, "params");
        const json::Value* userData = json::find(*members, "userData");
        if (params == nullptr || userData == nullptr) continue;
        for (HandlerFailure& failure :
             handlerFailures(name, json::asObject(*params), json::asObject(*userData))) {
            report.handlerCheckFailures.push_back(std::move(failure.text));
        }
    }
}

}  // namespace metagen

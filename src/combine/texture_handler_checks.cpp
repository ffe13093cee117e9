#include "combine/texture_handler_checks.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "support/process_end.h"

namespace metagen {

namespace {

constexpr std::string_view colorHandler = "ColorTexFrameHandler";
constexpr std::string_view floatHandler = "FloatTexFrameHandler";

// User data is named for its parameter, followed by what it is to the handler. In the order in
// which a name is matched against them.
constexpr std::array<std::string_view, 6> suffixes = {"_color",  "_float",    "_tex",
                                                      "_tex_on", "_tex_mult", "_res_mult"};
constexpr std::size_t colorSuffix = 0;
constexpr std::size_t floatSuffix = 1;
constexpr std::size_t firstSharedSuffix = 2;  // from here on both handlers need all of them

/// For each suffix, whether the parameter has that user data.
using Companions = std::array<bool, suffixes.size()>;

Companions findCompanions(const json::Object& userData, const std::string& parameter) {
    Companions companions = {};
    std::string name = parameter + '_';
    const auto next = userData.lower_bound(name);
    if (next == userData.end() || !next->first.starts_with(name)) return companions;
    for (std::size_t i = 0; i < suffixes.size(); ++i) {
        name.resize(parameter.size());
        companions[i] = userData.contains(name.append(suffixes[i]));
    }
    return companions;
}

/// User data that looks like a handler's: the parameter and the suffix that its name is made of.
struct HandlerData {
    std::string_view parameter;
    std::string_view suffix;
};

/// The first handler user data of each parameter name that any of it has, in the order of these
/// names.
std::vector<HandlerData> findHandlerData(const json::Object& userData) {
    std::vector<HandlerData> found;
    for (const auto& member : userData) {
        const std::string_view name = member.first;
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
    PluginCheck(const std::string& pluginName, const json::Object& pluginParams,
                const json::Object& pluginUserData, std::vector<std::string>& failureList)
        : plugin(pluginName),
          params(pluginParams),
          userData(pluginUserData),
          failures(failureList) {}

    void run() {
        for (const auto& [name, value] : params) checkParameter(name, value);
        if (hasHandler && !userData.contains("texture_multiplier_mode")) {
            // The double quote at the end is deliberate: it belongs to the known text.
            failures.push_back(plugin +
                               ": the plugin has float texture handler(s) but no "
                               "'texture_multiplier_mode' \"");
        }
        for (const HandlerData& data : findHandlerData(userData)) checkHandlerData(data);
    }

private:
    void checkParameter(const std::string& name, const json::Value& value) {
        const Companions companions = findCompanions(userData, name);
        if (std::ranges::find(companions, true) == companions.end()) return;
        const json::Value* handler = json::find(json::asObject(value), "handler");
        if (handler == nullptr) {
            record(name, "Userdata for handler exist, but no handler was defined");
            return;
        }
        hasHandler = true;
        const auto shared = companions.begin() + firstSharedSuffix;
        if (std::find(shared, companions.end(), false) != companions.end()) {
            record(name, "_tex_* user data is missing");
        }
        if (companions[colorSuffix] == companions[floatSuffix]) {
            record(name, "expecting exactly one " + name + "_float or " + name + "_color");
        }
        if (handler->is<std::string>())
            checkHandlerName(name, json::asString(*handler), companions);
    }

    /// User data for a float wins over that for a colour.
    void checkHandlerName(const std::string& name, const std::string& handler,
                          const Companions& companions) {
        if (companions[floatSuffix]) {
            expectHandler(name, handler, floatHandler);
        } else if (companions[colorSuffix]) {
            expectHandler(name, handler, colorHandler);
        }
    }

    void expectHandler(const std::string& name, const std::string& handler,
                       std::string_view expected) {
        if (handler == expected) return;
        record(name, "mismatch handler type \"" + handler + "\", expecting \"" +
                         std::string(expected) + '"');
    }

    void checkHandlerData(const HandlerData& data) {
        const std::string name(data.parameter);
        const json::Value* parameter = json::find(params, name);
        if (parameter == nullptr) {
            record(name, "Texture handler userdata seem to be defined: " + name +
                             std::string(data.suffix));
            return;
        }
        const json::Value* handler = json::find(json::asObject(*parameter), "handler");
        if (handler == nullptr) {
            record(name, "Expecting a handler");
        } else if (handler->is<std::string>()) {
            checkSuffix(name, json::asString(*handler), data.suffix);
        }
    }

    /// "_color" comes first of all suffixes in byte order, then "_float". So the suffix at hand,
    /// which is the first, tells whether these two exist.
    void checkSuffix(const std::string& name, const std::string& handler, std::string_view suffix) {
        if (handler == colorHandler) {
            if (suffix == suffixes[colorSuffix]) return;
            record(name, "Color texture frame handler defined, but no \"_color\" user data");
        } else if (handler == floatHandler) {
            if (suffix == suffixes[floatSuffix]) return;
            record(name, "Float texture frame handler defined, but no \"_float\" user data");
        } else {
            record(name, "Texture frame handler user data exist, but no handler defined");
        }
    }

    void record(const std::string& name, const std::string& text) {
        failures.push_back(plugin + "::" + name + ": " + text);
    }

    const std::string& plugin;
    const json::Object& params;
    const json::Object& userData;
    std::vector<std::string>& failures;
    bool hasHandler = false;
};

}  // namespace

void checkTextureHandlers(const json::Object& document, CombineReport& report) {
    const json::Value* plugins = json::find(document, "plugins");
    if (plugins == nullptr) {
        print("Combined Json has no Plugins!\n");
        exitWithStatus(failureStatus);
    }
    for (const auto& [name, plugin] : json::asObject(*plugins)) {
        if (!plugin.is<json::Object>()) continue;
        const json::Value* params = json::find(json::asObject(plugin), "params");
        const json::Value* userData = json::find(json::asObject(plugin), "userData");
        if (params == nullptr || userData == nullptr) continue;
        PluginCheck(name, json::asObject(*params), json::asObject(*userData),
                    report.handlerCheckFailures)
            .run();
    }
}

}  // namespace metagen

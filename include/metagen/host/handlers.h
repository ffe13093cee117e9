// Handler metadata: which parameters a handler of the host serves, and with which value. The
// generated handlers.inl is the body of a function that returns a HandlerMeta.
#pragma once

#include <cstdint>
#include <limits>  // infinities and NaNs, which handlers.inl names
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace metagen::host {

/// The handlers that the generator knows, with their numbers in the binary table.
enum class HandlerTypes : std::uint32_t { Float = 1, Color = 2, Duplicate = 6 };

/// The value is nothing for the neutral 1 (or for a duplicate, which has none), one number for a
/// float or a grey, three for a colour.
struct Handler {
    HandlerTypes type = HandlerTypes::Float;
    std::vector<float> value = {};
};

class PluginHandlers {
public:
    PluginHandlers& add(std::string_view parameter, HandlerTypes type) {
        return add(parameter, {type, {}});
    }
    PluginHandlers& add(std::string_view parameter, HandlerTypes type, float value) {
        return add(parameter, {type, {value}});
    }
    PluginHandlers& add(std::string_view parameter, HandlerTypes type, float r, float g, float b) {
        return add(parameter, {type, {r, g, b}});
    }
    PluginHandlers& add(std::string_view parameter, Handler handler) {
        handlers.insert_or_assign(std::string(parameter), std::move(handler));
        return *this;
    }

    std::map<std::string, Handler> handlers;  ///< by the parameter's name
};

class HandlerMeta {
public:
    explicit HandlerMeta(double documentVersion) : version(documentVersion) {}

    PluginHandlers& add(std::string_view plugin) { return plugins[std::string(plugin)]; }

    double version;
    std::map<std::string, PluginHandlers> plugins;
};

}  // namespace metagen::host

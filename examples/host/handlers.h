// The host's handler metadata: which parameters a handler of the host serves, and with which value.
// The generated handlers.inl builds a HandlerMeta, in these words.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace host {

/// The handlers of this host that the generator knows. The numbers are those of the binary table;
/// others belong to handlers that it leaves alone.
enum class HandlerTypes : std::uint32_t { Float = 1, Color = 2, Duplicate = 6 };

/// The value is nothing for the neutral 1 (or for a duplicate, which has none), one number for a
/// float or a grey, three for a colour.
struct Handler {
    HandlerTypes type;
    std::vector<float> value;
};

class PluginHandlers {
public:
    PluginHandlers& add(const std::string& parameter, HandlerTypes type) {
        return add(parameter, {type, {}});
    }
    PluginHandlers& add(const std::string& parameter, HandlerTypes type, float value) {
        return add(parameter, {type, {value}});
    }
    PluginHandlers& add(const std::string& parameter, HandlerTypes type, float r, float g,
                        float b) {
        return add(parameter, {type, {r, g, b}});
    }
    PluginHandlers& add(const std::string& parameter, Handler handler) {
        handlers.insert_or_assign(parameter, std::move(handler));
        return *this;
    }

    std::map<std::string, Handler> handlers;  ///< by the parameter's name
};

class HandlerMeta {
public:
    explicit HandlerMeta(double documentVersion) : version(documentVersion) {}

    PluginHandlers& add(const std::string& plugin) { return plugins[plugin]; }

    double version;
    std::map<std::string, PluginHandlers> plugins;
};

}  // namespace host

// What `genh` takes from a combined document: the parameters that a host serves by a handler.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "json/value.h"
#include "model/handler_kinds.h"

namespace metagen {

/// Names are the document's.
struct HandlerParameter {
    std::string_view name;
    const HandlerKind* kind = nullptr;
    std::array<float, 3> components = {};
    std::size_t componentCount = 0;

    /// The default as the host is told it: none when it is the host's own default 1 or the kind has
    /// none, one for a float or a grey colour, otherwise r, g and b.
    [[nodiscard]] std::span<const float> defaultValue() const {
        return std::span(components).first(componentCount);
    }
};

struct HandlerPlugin {
    std::string_view name;
    std::vector<HandlerParameter> parameters;
};

/// Reads the handler parameters of the plugins, both in byte order of their names; only plugins
/// that have any. A parameter with another handler, or without user data that its handler needs, is
/// passed over. A plugin, "params", "userData", a "handler" or a default of the wrong kind throws
/// the JSON library's type mismatch, a missing default std::out_of_range (see json::at), and one
/// that is no number what `parseFloat` throws.
std::vector<HandlerPlugin> readHandlers(json::Object plugins);

}  // namespace metagen

// The handlers by which a host serves parameters, and the parameters of a combined document that it
// serves so.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "json/value.h"

namespace metagen {

struct HandlerKind {
    std::string_view word;        ///< in documents
    std::string_view hostMember;  ///< of the host's HandlerTypes
    std::uint32_t number;         ///< of that member; the host has others between these
    std::string_view value;       ///< suffix of the user data with the default; empty: has none
    std::span<const std::string_view> needed;    ///< of the others, those that `genh` insists on
    std::span<const std::string_view> expected;  ///< those that `combine` asks for, these and more
};

namespace handler_kind {

inline constexpr std::array<std::string_view, 4> textureData = {"_tex", "_tex_on", "_tex_mult",
                                                                "_res_mult"};
inline constexpr std::array<std::string_view, 2> duplicateData = {"_duplicate",
                                                                  "_duplicate_output"};

inline constexpr HandlerKind color = {"ColorTexFrameHandler",          "Color",    2, "_color",
                                      std::span(textureData).first(3), textureData};
inline constexpr HandlerKind floatNumber = {
    "FloatTexFrameHandler", "Float", 1, "_float", std::span(textureData).first(3), textureData};
/// `combine` has no check of its own for these.
inline constexpr HandlerKind duplicate = {"DuplicateHandler", "Duplicate", 6, "",
                                          duplicateData,      {}};

/// The handler of parameters that name files, which has no user data.
inline constexpr std::string_view fileBrowserWord = "FileBrowserHandler";

inline constexpr std::array all = {&color, &floatNumber, &duplicate};

}  // namespace handler_kind

/// The kind with that word in documents, or null.
inline const HandlerKind* findHandlerKind(std::string_view word) {
    const auto kind = std::ranges::find(handler_kind::all, word, &HandlerKind::word);
    return kind == handler_kind::all.end() ? nullptr : *kind;
}

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

/// Reads one parameter with its plugin's user data; nothing when it is passed over. Throws as
/// readHandlers does.
std::optional<HandlerParameter> readHandlerParameter(std::string_view name,
                                                     const json::Value& value,
                                                     json::Object userData);

/// Reads the handler parameters of the plugins, both in byte order of their names; only plugins
/// that have any. A parameter with another handler, or without user data that its handler needs, is
/// passed over. A plugin, "params", "userData", a "handler" or a default of the wrong kind throws
/// the JSON library's type mismatch, a missing default std::out_of_range (see json::at), and one
/// that is no number what `parseFloat` throws.
std::vector<HandlerPlugin> readHandlers(json::Object plugins);

}  // namespace metagen

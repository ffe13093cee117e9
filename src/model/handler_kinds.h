// The handlers by which a host serves parameters: what documents call each, what the host calls it,
// and the user data that stand beside the parameter, named after it with a suffix. `combine` checks
// by these rows, `genh` generates by them.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

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

inline constexpr std::array all = {&color, &floatNumber, &duplicate};

}  // namespace handler_kind

/// The kind with that word in documents, or null.
inline const HandlerKind* findHandlerKind(std::string_view word) {
    const auto kind = std::ranges::find(handler_kind::all, word, &HandlerKind::word);
    return kind == handler_kind::all.end() ? nullptr : *kind;
}

}  // namespace metagen

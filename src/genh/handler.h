// What the host application is told about a handler parameter, the same in both outputs.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "model/combined_model.h"

namespace metagen {

/// The host application's HandlerTypes. It has other members between these: the gaps stay.
enum class HandlerKind : std::uint32_t { floatNumber = 1, color = 2, duplicate = 6 };

/// A kind and the arguments of the default: none when it is the host's own default 1 or the kind
/// has none, one for a float or a grey colour, otherwise r, g and b.
struct Handler {
    HandlerKind kind = HandlerKind::duplicate;
    std::array<float, 3> components = {};
    std::size_t count = 0;

    std::span<const float> arguments() const { return std::span(components).first(count); }
};

/// The handler that a parameter's kind and default stand for; nothing when it has no kind of
/// handler_kind. A default that doesn't fit the kind counts as zeros.
std::optional<Handler> handlerOf(const ParamEntry& param);

}  // namespace metagen

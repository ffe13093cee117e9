#include "genh/handler.h"

#include <type_traits>
#include <variant>

#include "support/numeric.h"

namespace metagen {

namespace {

float toFloatValue(const DefaultValue& value) {
    return std::visit(
        [](const auto& held) {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_arithmetic_v<Held>) {
                return toFloat(static_cast<double>(held));
            } else {
                return 0.0F;
            }
        },
        value);
}

/// Hosts have no use for the alpha.
Color toColor(const DefaultValue& value) {
    if (const auto* color = std::get_if<Color>(&value)) return *color;
    if (const auto* color = std::get_if<AColor>(&value)) {
        return {(*color)[0], (*color)[1], (*color)[2]};
    }
    return {};
}

Handler withGrey(HandlerKind kind, float value) {
    if (value == 1.0F) return {kind, {}, 0};
    return {kind, {value}, 1};
}

Handler withColor(const Color& color) {
    const bool grey = color[0] == color[1] && color[0] == color[2];
    if (grey) return withGrey(HandlerKind::color, color[0]);
    return {HandlerKind::color, color, color.size()};
}

}  // namespace

std::optional<Handler> handlerOf(const ParamEntry& param) {
    if (param.typeName == nullptr) return std::nullopt;
    if (*param.typeName == handler_kind::color) return withColor(toColor(param.defaultValue));
    if (*param.typeName == handler_kind::floatNumber) {
        return withGrey(HandlerKind::floatNumber, toFloatValue(param.defaultValue));
    }
    if (*param.typeName == handler_kind::duplicate) return Handler{};
    return std::nullopt;
}

}  // namespace metagen

// A tagged default value as a source of answers holds it, before it is copied into the blocks that
// the interface hands out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "sdk/parameter_type.h"

namespace metagen::replay {

/// A text, or nothing where the interface gives a null pointer.
using Text = std::optional<std::string>;

struct PluginReference {
    bool hasRenderer = true;  ///< false: the renderer in the reference is null
    std::int64_t pluginId = 0;
    std::int32_t propertyIndex = 0;
};

struct DefaultValue {
    /// Any tag, those that no caller knows included.
    std::int32_t kind = -1;

    /// What the kind asks for; float sequences hold 3, 4, 9 or 12 numbers for each single value or
    /// list element. std::monostate stands for a kind without payload and for a null pointer.
    std::variant<std::monostate, std::int32_t, float, double, std::uint8_t, std::string,
                 PluginReference, std::vector<std::int32_t>, std::vector<float>, std::vector<Text>,
                 std::vector<PluginReference>, std::vector<DefaultValue>>
        payload;
};

/// Floats that one value of the kind takes: of a single vector, colour, acolor, matrix or
/// transform, or of one element of a list of such; 1 for every other kind.
inline std::size_t floatsPerValue(std::int32_t kind) {
    const ParameterType* element = findElementType(kind);
    const ParameterType* type = element != nullptr ? element : findType(kind);
    return type != nullptr ? type->components : 1;
}

}  // namespace metagen::replay

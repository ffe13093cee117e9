// A tagged default value as a source of answers holds it, before it is copied into the blocks that
// the interface hands out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

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

/// The tags that have a payload, as the SDK's interface numbers them.
namespace kind {
inline constexpr std::int32_t badValue = -1;
inline constexpr std::int32_t integer = 0;
inline constexpr std::int32_t single = 1;
inline constexpr std::int32_t real = 2;
inline constexpr std::int32_t boolean = 3;
inline constexpr std::int32_t vector = 4;
inline constexpr std::int32_t color = 5;
inline constexpr std::int32_t acolor = 6;
inline constexpr std::int32_t matrix = 7;
inline constexpr std::int32_t transform = 8;
inline constexpr std::int32_t string = 9;
inline constexpr std::int32_t plugin = 10;
inline constexpr std::int32_t list = 12;
inline constexpr std::int32_t integerList = 100;
inline constexpr std::int32_t floatList = 101;
inline constexpr std::int32_t vectorList = 104;
inline constexpr std::int32_t colorList = 105;
inline constexpr std::int32_t transformList = 108;
inline constexpr std::int32_t stringList = 109;
inline constexpr std::int32_t pluginList = 110;
inline constexpr std::int32_t unspecified = 10000;
}  // namespace kind

/// Floats that one value of the kind takes: of a single vector, colour, acolor, matrix or
/// transform, or of one element of a list of such; 1 for every other kind.
constexpr std::size_t floatsPerValue(std::int32_t tag) {
    switch (tag) {
        case kind::vector:
        case kind::color:
        case kind::vectorList:
        case kind::colorList: return 3;
        case kind::acolor: return 4;
        case kind::matrix: return 9;
        case kind::transform:
        case kind::transformList: return 12;
        default: return 1;
    }
}

}  // namespace metagen::replay

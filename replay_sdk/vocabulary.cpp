#include "replay_sdk/vocabulary.h"

#include <array>
#include <string>
#include <utility>

#include "sdk/parameter_type.h"
#include "sdk/qyra_sdk.h"

namespace metagen::replay {

namespace {

constexpr std::array<std::pair<std::string_view, unsigned>, 11> categoryNames = {{
    {"bitmap", 0},
    {"BRDF", 1},
    {"node", 2},
    {"geometry", 3},
    {"light", 4},
    {"material", 5},
    {"render_channel", 6},
    {"settings", 7},
    {"texture", 9},
    {"uvw", 15},
    {"volumetric", 16},
}};

}  // namespace

std::optional<unsigned> categoryBitOf(std::string_view categoryName) {
    for (const auto& [name, bit] : categoryNames)
        if (name == categoryName) return bit;
    return std::nullopt;
}

std::optional<std::int32_t> kindOf(std::string_view kindName) {
    if (kindName == "badValue") return qyra_kind::bad;
    if (kindName == "unspecified") return qyra_kind::unspecified;
    for (const ParameterType& type : parameterTypes) {
        if (type.shape != ValueShape::none && kindName == type.name) return type.code;
        const bool isList = kindName == std::string(type.name) + "List";
        if (isList && !type.listWord.empty()) return listCodeOf(type.code);
    }
    return std::nullopt;
}

}  // namespace metagen::replay

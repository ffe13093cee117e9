#include "replay_sdk/vocabulary.h"

#include <array>
#include <utility>

#include "replay_sdk/default_value.h"

namespace metagen::replay {

namespace {

template <typename Number>
using Word = std::pair<std::string_view, Number>;

constexpr std::array<Word<std::int32_t>, 20> typeNames = {{
    {"integer", 0},
    {"float", 1},
    {"double", 2},
    {"bool", 3},
    {"vector", 4},
    {"color", 5},
    {"acolor", 6},
    {"matrix", 7},
    {"transform", 8},
    {"string", 9},
    {"plugin", 10},
    {"texture", 11},
    {"color texture", 11},
    {"acolor texture", 11},
    {"list", 12},
    {"float texture", 13},
    {"integer texture", 14},
    {"vector texture", 15},
    {"matrix texture", 16},
    {"transform texture", 17},
}};

constexpr std::array<Word<unsigned>, 11> categoryNames = {{
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

constexpr std::array<Word<std::int32_t>, 21> kindNames = {{
    {"badValue", kind::badValue},
    {"integer", kind::integer},
    {"float", kind::single},
    {"double", kind::real},
    {"bool", kind::boolean},
    {"vector", kind::vector},
    {"color", kind::color},
    {"acolor", kind::acolor},
    {"matrix", kind::matrix},
    {"transform", kind::transform},
    {"string", kind::string},
    {"plugin", kind::plugin},
    {"list", kind::list},
    {"integerList", kind::integerList},
    {"floatList", kind::floatList},
    {"vectorList", kind::vectorList},
    {"colorList", kind::colorList},
    {"transformList", kind::transformList},
    {"stringList", kind::stringList},
    {"pluginList", kind::pluginList},
    {"unspecified", kind::unspecified},
}};

template <typename Number, std::size_t count>
std::optional<Number> find(const std::array<Word<Number>, count>& words, std::string_view wanted) {
    for (const auto& [word, number] : words)
        if (word == wanted) return number;
    return std::nullopt;
}

}  // namespace

std::optional<std::int32_t> typeCodeOf(std::string_view typeName) {
    return find(typeNames, typeName);
}

std::int32_t listTypeCode(std::int32_t elementTypeCode) {
    constexpr std::int32_t genericList = 12;
    constexpr std::int32_t firstList = 100;
    return elementTypeCode == genericList ? genericList : elementTypeCode + firstList;
}

std::optional<unsigned> categoryBitOf(std::string_view categoryName) {
    return find(categoryNames, categoryName);
}

std::optional<std::int32_t> kindOf(std::string_view kindName) { return find(kindNames, kindName); }

}  // namespace metagen::replay

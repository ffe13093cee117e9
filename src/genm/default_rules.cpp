// How the default of each type is read. The table below is the only place that knows the types.
#include <algorithm>
#include <array>

#include "genm/default_record.h"
#include "metadata/default_value_parser.h"
#include "sdk/parameter_type.h"
#include "support/end_run.h"
#include "support/numbers.h"

namespace metagen {

namespace {

using DefaultText = std::optional<std::string_view>;

/// One type. A list without a default, or whose default is refused, has its fallback descriptor
/// alone; a list text without elements is a list all the same unless the rule says otherwise.
struct DefaultRule {
    std::int32_t code;
    DefaultRecord (*read)(const DefaultRule& rule, DefaultText text, DefaultValues& values);
    const Descriptor* descriptor = nullptr;  ///< of the values that were read
    std::string_view prefix = {};            ///< of the arrays that hold them
    const Descriptor* fallback = nullptr;
    bool fallsBackWhenEmpty = false;
};

constexpr bool emptyFallsBack = true;

constexpr std::string_view noText;

DefaultRecord readInteger(const DefaultRule& /*rule*/, DefaultText text,
                          DefaultValues& /*values*/) {
    return std::int32_t{parseInteger(*text)};
}

DefaultRecord readFloat(const DefaultRule& /*rule*/, DefaultText text, DefaultValues& /*values*/) {
    return parseFloat(*text);
}

DefaultRecord readText(const DefaultRule& /*rule*/, DefaultText text, DefaultValues& /*values*/) {
    return *text;
}

DefaultRecord readNothing(const DefaultRule& /*rule*/, DefaultText /*text*/,
                          DefaultValues& /*values*/) {
    return noText;
}

DefaultRecord readDescriptor(const DefaultRule& rule, DefaultText /*text*/,
                             DefaultValues& /*values*/) {
    return DescriptorOnly{rule.descriptor};
}

template <std::size_t count, bool (*parse)(std::string_view, std::span<float, count>)>
DefaultRecord readComponents(const DefaultRule& rule, DefaultText text, DefaultValues& values) {
    values.floats.resize(count);
    const std::span<float, count> components(values.floats.data(), count);
    if (!parse(*text, components)) values.floats.clear();
    return FloatArray{rule.descriptor, rule.prefix, values.floats};
}

/// A texture stands for a colour, with or without alpha, where its default reads as one.
DefaultRecord readTexture(const DefaultRule& /*rule*/, DefaultText text, DefaultValues& values) {
    values.floats.resize(4);
    const auto components = std::span(values.floats).first<4>();
    if (parseAColor(*text, components)) {
        return FloatArray{&descriptor::acolor, array_prefix::acolor, components};
    }
    if (parseVector3(*text, components.first<3>())) {
        return FloatArray{&descriptor::vector3, array_prefix::color, components.first<3>()};
    }
    return noText;
}

/// A list without a default, or whose default is refused, falls back.
bool fallsBack(const DefaultRule& rule, bool isRead, bool isEmpty) {
    return !isRead || (isEmpty && rule.fallsBackWhenEmpty);
}

DefaultRecord readIntegers(const DefaultRule& rule, DefaultText text, DefaultValues& values) {
    values.integers.clear();
    const bool isRead = text && parseIntList(*text, values.integers);
    if (fallsBack(rule, isRead, values.integers.empty())) return DescriptorOnly{rule.fallback};
    return IntegerArray{rule.descriptor, values.integers};
}

template <bool (*parse)(std::string_view, std::vector<float>&)>
DefaultRecord readFloatLists(const DefaultRule& rule, DefaultText text, DefaultValues& values) {
    values.floats.clear();
    const bool isRead = text && parse(*text, values.floats);
    if (fallsBack(rule, isRead, values.floats.empty())) return DescriptorOnly{rule.fallback};
    return FloatArray{rule.descriptor, rule.prefix, values.floats};
}

constexpr auto readVector3 = readComponents<3, parseVector3>;
constexpr auto readAColor = readComponents<4, parseAColor>;
constexpr auto readMatrix = readComponents<9, parseMatrix>;
constexpr auto readTransform = readComponents<12, parseTransform>;
constexpr auto readFloats = readFloatLists<parseFloatList>;
constexpr auto readVector3s = readFloatLists<parseVector3List>;
constexpr auto readAColors = readFloatLists<parseAColorList>;
constexpr auto readMatrices = readFloatLists<parseMatrixList>;
constexpr auto readTransforms = readFloatLists<parseTransformList>;

namespace code = type_code;
namespace shape = descriptor;
namespace prefix = array_prefix;

// Types that are not listed, a double and a list of doubles among them, deliberately have no
// descriptor. The plain lists fall back to their own descriptor, the lists of plugins and textures
// to the one of strings: deliberate, too, hosts tell them apart by it.
constexpr std::array<DefaultRule, 34> rules = {{
    {code::integer, readInteger},
    {code::floatNumber, readFloat},
    {code::boolean, readInteger},
    {code::vector, readVector3, &shape::vector3, prefix::vector},
    {code::color, readVector3, &shape::vector3, prefix::color},
    {code::acolor, readAColor, &shape::acolor, prefix::acolor},
    {code::matrix, readMatrix, &shape::matrix, prefix::matrix},
    {code::transform, readTransform, &shape::transform, prefix::transform},
    {code::string, readText},
    {code::plugin, readTexture},
    {code::texture, readTexture},
    {code::list, readDescriptor, &shape::stringList},
    {code::floatTexture, readFloat},
    {code::integerTexture, readNothing},
    {code::vectorTexture, readNothing},
    {code::matrixTexture, readNothing},
    {code::transformTexture, readNothing},
    {listCodeOf(code::integer), readIntegers, &shape::integerList, prefix::integers,
     &shape::integerList, emptyFallsBack},
    {listCodeOf(code::floatNumber), readFloats, &shape::floatList, prefix::floats,
     &shape::floatList, emptyFallsBack},
    {listCodeOf(code::boolean), readIntegers, &shape::integerList, prefix::integers,
     &shape::integerList, emptyFallsBack},
    {listCodeOf(code::vector), readVector3s, &shape::vector3List, prefix::vector,
     &shape::vector3List},
    {listCodeOf(code::color), readVector3s, &shape::vector3List, prefix::color,
     &shape::vector3List},
    {listCodeOf(code::acolor), readAColors, &shape::acolorList, prefix::acolor, &shape::acolorList},
    {listCodeOf(code::matrix), readMatrices, &shape::matrixList, prefix::matrix,
     &shape::matrixList},
    {listCodeOf(code::transform), readTransforms, &shape::transformList, prefix::transform,
     &shape::transformList},
    {listCodeOf(code::string), readDescriptor, &shape::stringList},
    {listCodeOf(code::plugin), readFloats, &shape::floatList, prefix::floats, &shape::stringList,
     emptyFallsBack},
    {listCodeOf(code::texture), readDescriptor, &shape::stringList},
    {listCodeOf(code::floatTexture), readFloats, &shape::floatList, prefix::floats,
     &shape::stringList, emptyFallsBack},
    {listCodeOf(code::integerTexture), readIntegers, &shape::integerList, prefix::integers,
     &shape::stringList},
    {listCodeOf(code::vectorTexture), readVector3s, &shape::vector3List, prefix::vector,
     &shape::stringList},
    {listCodeOf(code::matrixTexture), readMatrices, &shape::matrixList, prefix::matrix,
     &shape::stringList},
    {listCodeOf(code::transformTexture), readTransforms, &shape::transformList, prefix::transform,
     &shape::stringList},
    {code::unspecified, readNothing},
}};

/// Null when the code has none.
const DefaultRule* findRule(std::int32_t code) {
    const auto rule = std::ranges::find(rules, code, &DefaultRule::code);
    return rule == rules.end() ? nullptr : rule;
}

}  // namespace

bool hasDefaultRule(std::int32_t code) { return findRule(code) != nullptr; }

DefaultRecord readTypedDefault(std::int32_t code, DefaultText text, DefaultValues& values) {
    if (const DefaultRule* rule = findRule(code)) return rule->read(*rule, text, values);
    endRun(brokenMetadataStatus, "unsupported type\n");
}

}  // namespace metagen

#include "benchmarks/invented_sdk/invented_parameter.h"

#include <array>

namespace metagen::invented {

namespace {

/// The tags of values: type codes of single values, and of lists.
namespace kind {
using namespace type_code;  // NOLINT(google-build-using-namespace): all of them, by their names
constexpr std::int32_t integerList = listCodeOf(integer);
constexpr std::int32_t floatList = listCodeOf(floatNumber);
constexpr std::int32_t vectorList = listCodeOf(vector);
constexpr std::int32_t colorList = listCodeOf(color);
constexpr std::int32_t transformList = listCodeOf(transform);
constexpr std::int32_t stringList = listCodeOf(string);
constexpr std::int32_t pluginList = listCodeOf(plugin);
}  // namespace kind

/// Not a kind: the value comes from a user-interface guide with so many floats, or with none.
constexpr std::int32_t colorGuide = -103;
constexpr std::int32_t acolorGuide = -104;
constexpr std::int32_t singleGuide = -101;

/// Not a kind: the text "none", with which the SDK says that a parameter has no default.
constexpr std::int32_t noDefault = -100;

/// How many of a thousand parameters are of this type, and with what kind of default.
struct MixEntry {
    std::size_t share = 0;
    std::int32_t typeCode = 0;
    std::int32_t kind = 0;
    std::int32_t elementKind = 0;  ///< of a generic list
};

constexpr std::array<MixEntry, 45> mix = {{
    {188, 1, kind::floatNumber},
    {20, 1, singleGuide},
    {8, 2, kind::doubleNumber},
    {141, 0, kind::integer},
    {127, 3, kind::boolean},
    {32, 11, kind::acolor},
    {14, 11, kind::color},
    {14, 11, acolorGuide},
    {8, 11, colorGuide},
    {12, 11, kind::plugin},
    {14, 11, noDefault},
    {64, 9, kind::string},
    {34, 13, kind::floatNumber},
    {18, 13, singleGuide},
    {36, 10, kind::plugin},
    {12, 10, noDefault},
    {34, 5, kind::color},
    {18, 4, kind::vector},
    {12, 6, kind::acolor},
    {25, 8, kind::transform},
    {14, 7, kind::matrix},
    {5, 17, kind::transform},
    {4, 15, kind::vector},
    {4, 16, kind::matrix},
    {4, 14, kind::integer},
    {12, 100, kind::integerList},
    {6, 100, noDefault},
    {10, 110, kind::pluginList},
    {8, 110, noDefault},
    {16, 101, kind::floatList},
    {12, 104, kind::vectorList},
    {8, 104, noDefault},
    {12, 109, kind::stringList},
    {8, 12, kind::list, kind::string},
    {3, 12, noDefault},
    {7, 105, kind::colorList},
    {8, 108, kind::transformList},
    {4, 103, kind::list, kind::boolean},
    {5, 106, kind::list, kind::acolor},
    {3, 111, kind::list, kind::color},
    {3, 113, kind::floatList},
    {6, 107, kind::list, kind::matrix},
    {2, 114, kind::integerList},
    {4, 115, kind::vectorList},
    {1, 117, kind::transformList},
}};

constexpr std::array<float, 12> usualFloats = {0, 0, 0, 1, 1, 1, 0.5F, 0.1F, 2, 100, 0.01F, 1e-07F};
constexpr std::array<std::int32_t, 10> usualIntegers = {0, 0, 1, 1, 2, 3, 8, 16, 100, -1};
constexpr std::array<float, 4> usualShades = {0, 1, 0.5F, 0.8F};

constexpr std::array<std::string_view, 14> usualTexts = {
    "",
    "linear",
    "diffuse_color",
    "textures/wood/oak_planks_diffuse_4k.<UDIM>.exr",
    "velocity",
    "C:\\projects\\scene\\cache\\frame",
    "/mnt/assets/caches/smoke_####.vdb",
    "crypto \"object\" names",
    "Camera01",
    "beauty\tpass",
    "ACEScg",
    "Grüße aus dem Renderer",
    "spherical",
    "if(frame < 100, bump * 0.5, bump * smoothstep(0, 1, distance / falloff))"};

const MixEntry& pick(Dice& dice) {
    std::size_t left = dice.below(1000);
    for (const MixEntry& entry : mix) {
        if (left < entry.share) return entry;
        left -= entry.share;
    }
    return mix.front();
}

float inventFloat(Dice& dice) {
    if (dice.inThousand(650)) return dice.oneOf(usualFloats);
    const auto digits = static_cast<float>(dice.below(2'000'000)) - 400'000.0F;
    return digits / (dice.inThousand(500) ? 1000.0F : 100'000.0F);
}

std::int32_t inventInteger(Dice& dice) {
    if (dice.inThousand(850)) return dice.oneOf(usualIntegers);
    return static_cast<std::int32_t>(dice.below(100'000));
}

std::string inventText(Dice& dice) {
    std::string text(dice.oneOf(usualTexts));
    if (dice.inThousand(300)) text += std::to_string(dice.below(1000));
    return text;
}

replay::PluginReference inventReference(Dice& dice) {
    // Id 0 names nothing, as the SDK says it of a reference that was never set.
    return {true, static_cast<std::int64_t>(dice.below(instanceCount + 1)),
            static_cast<std::int32_t>(dice.below(3))};
}

/// Whole rows of the identity as often as catalogues have them.
void appendMatrix(std::vector<float>& floats, Dice& dice) {
    const bool identity = dice.inThousand(600);
    for (std::size_t cell = 0; cell < 9; ++cell) {
        const float usual = cell % 4 == 0 ? 1.0F : 0.0F;
        floats.push_back(identity ? usual : inventFloat(dice));
    }
}

void appendTriple(std::vector<float>& floats, Dice& dice) {
    const bool grey = dice.inThousand(550);
    const float shade = dice.oneOf(usualShades);
    for (int component = 0; component < 3; ++component)
        floats.push_back(grey ? shade : inventFloat(dice));
}

/// The floats of one value, or of one element of a list, of the kind.
void appendFloats(std::vector<float>& floats, std::int32_t tag, Dice& dice) {
    switch (replay::floatsPerValue(tag)) {
        case 3: appendTriple(floats, dice); break;
        case 4:
            appendTriple(floats, dice);
            floats.push_back(dice.inThousand(800) ? 1.0F : 0.0F);
            break;
        case 9: appendMatrix(floats, dice); break;
        case 12:
            appendMatrix(floats, dice);
            appendTriple(floats, dice);
            break;
        default: floats.push_back(inventFloat(dice)); break;
    }
}

std::vector<float> inventFloats(std::int32_t tag, std::size_t values, Dice& dice) {
    std::vector<float> floats;
    floats.reserve(values * replay::floatsPerValue(tag));
    for (; values > 0; --values) appendFloats(floats, tag, dice);
    return floats;
}

template <typename Element, typename Invent>
std::vector<Element> inventElements(Dice& dice, const Invent& invent) {
    std::vector<Element> elements(1 + dice.below(14));
    for (Element& element : elements) element = invent(dice);
    return elements;
}

replay::DefaultValue inventSingle(const ParameterType& type, Dice& dice) {
    switch (type.shape) {
        case ValueShape::integer: return {type.code, inventInteger(dice)};
        case ValueShape::single: return {type.code, inventFloat(dice)};
        case ValueShape::real: return {type.code, static_cast<double>(inventFloat(dice))};
        case ValueShape::boolean: return {type.code, static_cast<std::uint8_t>(dice.below(2))};
        case ValueShape::floats: return {type.code, inventFloats(type.code, 1, dice)};
        case ValueShape::text: return {type.code, inventText(dice)};
        case ValueShape::plugin: return {type.code, inventReference(dice)};
        case ValueShape::values:
        case ValueShape::none: break;  // not in the mix
    }
    return {};
}

replay::DefaultValue inventList(const ParameterType& element, Dice& dice) {
    const std::int32_t tag = listCodeOf(element.code);
    switch (element.shape) {
        case ValueShape::integer: return {tag, inventElements<std::int32_t>(dice, inventInteger)};
        case ValueShape::single:
        case ValueShape::floats: return {tag, inventFloats(tag, 1 + dice.below(14), dice)};
        case ValueShape::text: return {tag, inventElements<replay::Text>(dice, inventText)};
        case ValueShape::plugin:
            return {tag, inventElements<replay::PluginReference>(dice, inventReference)};
        case ValueShape::real:
        case ValueShape::boolean:
        case ValueShape::values:
        case ValueShape::none: break;  // these have no list of their own
    }
    return {};
}

/// A default value with this tag; a generic list has elements with elementTag.
replay::DefaultValue inventValue(std::int32_t tag, std::int32_t elementTag, Dice& dice) {
    if (tag != kind::list) {
        const ParameterType* element = findElementType(tag);
        return element != nullptr ? inventList(*element, dice) : inventSingle(*findType(tag), dice);
    }
    const auto inventElement = [element = findType(elementTag)](Dice& again) {
        return inventSingle(*element, again);
    };
    return {tag, inventElements<replay::DefaultValue>(dice, inventElement)};
}

InventedParameter guided(const MixEntry& entry, Dice& dice) {
    InventedParameter parameter = {entry.typeCode, {}, replay::Guide{}};
    if (entry.kind == singleGuide) {
        parameter.guide->single = inventFloat(dice);
    } else {
        const std::int32_t tag = entry.kind == acolorGuide ? kind::acolor : kind::color;
        parameter.guide->floats = inventFloats(tag, 1, dice);
    }
    return parameter;
}

bool isGuide(std::int32_t tag) {
    return tag == singleGuide || tag == colorGuide || tag == acolorGuide;
}

}  // namespace

InventedParameter inventParameter(Dice dice) {
    const MixEntry& entry = pick(dice);
    if (isGuide(entry.kind)) return guided(entry, dice);
    InventedParameter parameter = {entry.typeCode, {}, std::nullopt};
    if (entry.kind != noDefault) {
        parameter.defaultValue = inventValue(entry.kind, entry.elementKind, dice);
    } else if (!isListCode(entry.typeCode)) {
        parameter.defaultValue = {kind::string, std::string("none")};
    }
    return parameter;
}

replay::PluginInstance inventInstance(std::int64_t pluginId) {
    replay::PluginInstance instance;
    instance.name = "library/shared_texture_" + std::to_string(pluginId);
    instance.typeId = pluginId;
    instance.propertyNames = {{1, "out_color"}, {2, "out_intensity"}};
    return instance;
}

}  // namespace metagen::invented

#include "benchmarks/invented_sdk/names.h"

#include <array>
#include <charconv>

namespace metagen::invented {

namespace {

constexpr std::array<Category, 12> categories = {{
    {9, "Texture", 145},
    {5, "Material", 120},
    {4, "Light", 108},
    {8, "Settings", 108},
    {-1, "Helper", 108},
    {3, "Geometry", 97},
    {2, "Node", 84},
    {1, "Brdf", 60},
    {6, "Channel", 60},
    {16, "Volume", 38},
    {15, "Uvw", 36},
    {0, "Bitmap", 36},
}};

constexpr std::array<std::string_view, 24> classAdjectives = {
    "Brushed",  "Layered",  "Procedural", "Measured", "Scattered", "Tiled",
    "Animated", "Blended",  "Polar",      "Adaptive", "Cellular",  "Directed",
    "Folded",   "Gradient", "Hybrid",     "Indexed",  "Jittered",  "Latticed",
    "Mirrored", "Nested",   "Oriented",   "Pinned",   "Random",    "Woven"};

constexpr std::array<std::string_view, 24> subjects = {
    "diffuse",     "reflection", "refraction",   "shadow",     "opacity",  "bump",
    "coat",        "sheen",      "fog",          "anisotropy", "emission", "caustics",
    "subdivision", "sample",     "displacement", "iris",       "motion",   "environment",
    "texture",     "surface",    "volume",       "filter",     "Falloff",  "lens"};

constexpr std::array<std::string_view, 24> qualities = {
    "bias",   "amount",    "roughness",  "color",     "ior",      "depth",
    "scale",  "offset",    "falloff",    "threshold", "density",  "weight",
    "mode",   "subdivs",   "absorption", "gain",      "rotation", "glossiness",
    "radius", "frequency", "contrast",   "tint",      "bounces",  "seed"};

// Empty: a name of two words. No colour, texture or multiplier here, so that no name is another
// one with a suffix of user data.
constexpr std::array<std::string_view, 12> limits = {
    "",           "limit",   "override",    "minimum",   "maximum",      "variation",
    "multiplier", "enabled", "in_viewport", "behaviour", "compensation", "interpolation"};

}  // namespace

const Category& pickCategory(Dice dice) {
    std::size_t left = dice.below(1000);
    for (const Category& category : categories) {
        if (left < category.share) return category;
        left -= category.share;
    }
    return categories.front();
}

std::string makeClassName(const Category& category, Dice dice, std::size_t number) {
    std::string name(dice.oneOf(classAdjectives));
    name += category.classWord;
    return name + std::to_string(number);
}

std::size_t classNumber(std::string_view className) {
    const std::size_t firstDigit = className.find_last_not_of("0123456789") + 1;
    std::size_t number = 0;
    std::from_chars(className.data() + firstDigit, className.data() + className.size(), number);
    return number;
}

std::size_t parameterNameCount() { return subjects.size() * qualities.size() * limits.size(); }

std::string makeParameterName(std::size_t number) {
    std::string name(subjects[number % subjects.size()]);
    number /= subjects.size();
    name += '_';
    name += qualities[number % qualities.size()];
    const std::string_view limit = limits[number / qualities.size()];
    if (!limit.empty()) {
        name += '_';
        name += limit;
    }
    return name;
}

}  // namespace metagen::invented

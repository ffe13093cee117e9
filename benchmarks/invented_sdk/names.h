// Names of plugin classes and parameters, in the manner of those that the bundled catalogue has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "benchmarks/invented_sdk/dice.h"

namespace metagen::invented {

/// A category of plugin classes: its bit, the word with which names of its classes end, and how
/// many of a thousand classes are of it.
struct Category {
    int bit;  ///< -1: none
    std::string_view classWord;
    std::size_t share;
};

const Category& pickCategory(Dice dice);

/// "BrushedTexture417": the number, which is the class's own, makes it unique.
std::string makeClassName(const Category& category, Dice dice, std::size_t number);

/// The number at the end of a class name.
std::size_t classNumber(std::string_view className);

/// How many names makeParameterName can make for one class.
std::size_t parameterNameCount();

/// "shadow_bias", "diffuse_roughness_limit": different for every number below the count. None ends
/// in a suffix that user data adds to a parameter's name after the name of another.
std::string makeParameterName(std::size_t number);

}  // namespace metagen::invented

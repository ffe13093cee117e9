// The constant arrays at the head of generated source: every content once in its group, whatever
// the number of parameters that use it.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace metagen {

/// The prefixes of the array names; each names a group. Colours and vectors stay apart.
namespace array_prefix {
inline constexpr std::string_view acolor = "aclr";
inline constexpr std::string_view color = "clr";
inline constexpr std::string_view vector = "vec";
inline constexpr std::string_view matrix = "matr";
inline constexpr std::string_view transform = "trans";
inline constexpr std::string_view floats = "flt";
inline constexpr std::string_view integers = "inte";  ///< the one group of integer arrays
}  // namespace array_prefix

/// Arrays that share a name prefix and an element type.
class ValueArrayGroup {
public:
    explicit ValueArrayGroup(std::string_view namePrefix) : prefix(namePrefix) {}

    std::string_view namePrefix() const { return prefix; }

    /// The number of the array that equals the values, which is new when none does. Elements are
    /// compared as floats: 0 equals -0, and an array with a NaN equals none.
    std::size_t intern(std::span<const float> values);

    /// Appends a line for each array, of which there is one at least, in ascending order of the
    /// names: "vec10" before "vec2".
    void appendDefinitions(std::string& out) const;

private:
    /// Appends the array of that number and all whose numbers begin with its digits.
    void appendDefinitionsFrom(std::string& out, std::size_t number) const;
    void appendDefinition(std::string& out, std::size_t number) const;

    std::string_view prefix;
    [[nodiscard]] std::span<const float> array(std::size_t number) const;

    // By number, which is the order of first use: where each array ends, all of them in one.
    std::vector<std::size_t> ends;
    std::vector<float> allValues;
    /// The numbers of the arrays by a hash of their values, but for those with a NaN.
    std::unordered_multimap<std::size_t, std::size_t> numbersByHash;
};

/// The groups, in the order of their first use.
using ValueArrays = std::vector<ValueArrayGroup>;

/// Finds or makes the array of the values in the prefix's group and appends its name: the prefix
/// and the array's number.
void internValueArray(std::string& out, std::span<const float> values, ValueArrays& groups,
                      std::string_view prefix);

/// Appends the definitions of all arrays, each a line of generated source.
void appendDefinitions(std::string& out, const ValueArrays& groups);

}  // namespace metagen

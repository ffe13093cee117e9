#include "genm/value_arrays.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

#include "support/numbers.h"

namespace metagen {

namespace {

/// Arrays that compare equal have equal hashes.
std::size_t hashOf(std::span<const float> values) {
    constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = values.size();
    for (const float value : values) {
        const float folded = value == 0.0F ? 0.0F : value;  // -0 counts as 0
        hash = (hash ^ std::bit_cast<std::uint32_t>(folded)) * multiplier;
        hash ^= hash >> 32U;
    }
    return static_cast<std::size_t>(hash);
}

bool hasNan(std::span<const float> values) {
    return std::ranges::any_of(values, [](float value) { return std::isnan(value); });
}

/// The element text of an integer array: its values are kept as floats, too.
void appendWhole(std::string& out, float value) {
    appendInteger(out, toInt64(static_cast<double>(value)));
}

void appendValues(std::string& out, std::string_view prefix, std::span<const float> values) {
    const auto appendValue = prefix == array_prefix::integers ? appendWhole : appendFloatLiteral;
    const char* separator = " { ";
    for (const float value : values) {
        out += separator;
        appendValue(out, value);
        separator = ", ";
    }
    // Without values the opening brace is missing. Deliberate: the format's separators are taken
    // back two characters after the last value, and here these are the brace and its blank.
    out += values.empty() ? " };\n" : "};\n";
}

}  // namespace

std::span<const float> ValueArrayGroup::array(std::size_t number) const {
    const std::size_t begin = number == 0 ? 0 : ends[number - 1];
    return std::span(allValues).subspan(begin, ends[number] - begin);
}

std::size_t ValueArrayGroup::intern(std::span<const float> values) {
    const std::size_t number = ends.size();
    // An array with a NaN is kept out of the index: it would only be compared in vain.
    if (!hasNan(values)) {
        const std::size_t hash = hashOf(values);
        const auto [first, last] = numbersByHash.equal_range(hash);
        const auto equal = std::find_if(first, last, [&](const auto& entry) {
            return std::ranges::equal(array(entry.second), values);
        });
        if (equal != last) return equal->second;
        numbersByHash.emplace(hash, number);
    }
    allValues.insert(allValues.end(), values.begin(), values.end());
    ends.push_back(allValues.size());
    return number;
}

void ValueArrayGroup::appendDefinitions(std::string& out) const {
    appendDefinition(out, 0);
    for (std::size_t digit = 1; digit < 10; ++digit) appendDefinitionsFrom(out, digit);
}

void ValueArrayGroup::appendDefinitionsFrom(std::string& out, std::size_t number) const {
    if (number >= ends.size()) return;
    appendDefinition(out, number);
    for (std::size_t digit = 0; digit < 10; ++digit) {
        appendDefinitionsFrom(out, 10 * number + digit);
    }
}

void ValueArrayGroup::appendDefinition(std::string& out, std::size_t number) const {
    const bool isInteger = prefix == array_prefix::integers;
    out += isInteger ? "static constexpr int " : "static constexpr float ";
    out += prefix;
    appendInteger(out, static_cast<std::int64_t>(number));
    out += "[] =";
    appendValues(out, prefix, array(number));
}

void internValueArray(std::string& out, std::span<const float> values, ValueArrays& groups,
                      std::string_view prefix) {
    auto group = std::ranges::find(groups, prefix, &ValueArrayGroup::namePrefix);
    if (group == groups.end()) group = groups.emplace(group, prefix);
    out += prefix;
    appendInteger(out, static_cast<std::int64_t>(group->intern(values)));
}

void appendDefinitions(std::string& out, const ValueArrays& groups) {
    for (const ValueArrayGroup& group : groups) group.appendDefinitions(out);
}

}  // namespace metagen

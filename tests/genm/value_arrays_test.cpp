#include "genm/value_arrays.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <string>

namespace metagen {
namespace {

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

std::string intern(ValueArrays& groups, std::string_view prefix, std::vector<float> values) {
    std::string name;
    internValueArray(name, values, groups, prefix);
    return name;
}

std::string definitions(const ValueArrays& groups) {
    std::string text;
    appendDefinitions(text, groups);
    return text;
}

TEST(ValueArrays, TheFirstArrayOfAGroupIsNumberZero) {
    ValueArrays groups;
    EXPECT_EQ(intern(groups, "clr", {1, 1, 1}), "clr0");
}

TEST(ValueArrays, TheNameIsAppendedToTheText) {
    ValueArrays groups;
    std::string out = "a, ";
    internValueArray(out, std::array{1.0F, 2.0F, 3.0F}, groups, "vec");
    EXPECT_EQ(out, "a, vec0");
}

TEST(ValueArrays, EqualContentsShareAnArray) {
    ValueArrays groups;
    EXPECT_EQ(intern(groups, "clr", {1, 1, 1}), "clr0");
    EXPECT_EQ(intern(groups, "clr", {1, 1, 1}), "clr0");
    EXPECT_EQ(intern(groups, "clr", {0, 0, 0}), "clr1");
    EXPECT_EQ(intern(groups, "clr", {1, 1, 1}), "clr0");
    EXPECT_EQ(intern(groups, "clr", {0, 0, 0}), "clr1");
    EXPECT_EQ(intern(groups, "clr", {0, 0, 0.5F}), "clr2");
}

TEST(ValueArrays, GroupsShareNothing) {
    ValueArrays groups;
    EXPECT_EQ(intern(groups, "clr", {1, 1, 1}), "clr0");
    EXPECT_EQ(intern(groups, "vec", {1, 1, 1}), "vec0");
    EXPECT_EQ(intern(groups, "inte", {1, 1, 1}), "inte0");
}

TEST(ValueArrays, OfDifferentLengthsAreDifferent) {
    ValueArrays groups;
    EXPECT_EQ(intern(groups, "flt", {0}), "flt0");
    EXPECT_EQ(intern(groups, "flt", {0, 0}), "flt1");
    EXPECT_EQ(intern(groups, "flt", {}), "flt2");
    EXPECT_EQ(intern(groups, "flt", {}), "flt2");
}

TEST(ValueArrays, OfEqualHashesMayBeDifferent) {
    ValueArrays groups;
    EXPECT_EQ(intern(groups, "flt", {345.75F, 17, 1}), "flt0");
    EXPECT_EQ(intern(groups, "flt", {192.5F, 1.25F, -127374912}), "flt1");
    EXPECT_EQ(intern(groups, "flt", {345.75F, 17, 1}), "flt0");
    EXPECT_EQ(intern(groups, "flt", {192.5F, 1.25F, -127374912}), "flt1");
}

TEST(ValueArrays, TheOrderOfTheValuesCounts) {
    ValueArrays groups;
    EXPECT_EQ(intern(groups, "flt", {1, 2}), "flt0");
    EXPECT_EQ(intern(groups, "flt", {2, 1}), "flt1");
}

TEST(ValueArrays, ZeroEqualsMinusZeroAndTheFirstOneStays) {
    ValueArrays groups;
    EXPECT_EQ(intern(groups, "vec", {-0.0F, 1, 0}), "vec0");
    EXPECT_EQ(intern(groups, "vec", {0, 1, -0.0F}), "vec0");
    EXPECT_EQ(definitions(groups), "static constexpr float vec0[] = { -0.f, 1.f, 0.f};\n");
}

TEST(ValueArrays, AnArrayWithANanIsNeverShared) {
    ValueArrays groups;
    EXPECT_EQ(intern(groups, "flt", {1, nan}), "flt0");
    EXPECT_EQ(intern(groups, "flt", {1, nan}), "flt1");
    EXPECT_EQ(intern(groups, "flt", {1, 2}), "flt2");
    EXPECT_EQ(intern(groups, "flt", {1, 2}), "flt2");
}

TEST(ValueArrays, InfinitiesAreShared) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    ValueArrays groups;
    EXPECT_EQ(intern(groups, "flt", {infinity}), "flt0");
    EXPECT_EQ(intern(groups, "flt", {-infinity}), "flt1");
    EXPECT_EQ(intern(groups, "flt", {infinity}), "flt0");
}

TEST(ValueArrayDefinitions, GroupsStandInTheOrderOfTheirFirstUse) {
    ValueArrays groups;
    intern(groups, "vec", {1, 2, 3});
    intern(groups, "aclr", {0, 0, 0, 1});
    intern(groups, "vec", {0.5F, 0, 1e6F});
    EXPECT_EQ(definitions(groups),
              "static constexpr float vec0[] = { 1.f, 2.f, 3.f};\n"
              "static constexpr float vec1[] = { 0.5f, 0.f, 1e+06f};\n"
              "static constexpr float aclr0[] = { 0.f, 0.f, 0.f, 1.f};\n");
}

TEST(ValueArrayDefinitions, ArraysStandInTheOrderOfTheirNames) {
    ValueArrays groups;
    for (int number = 0; number < 12; ++number) {
        intern(groups, "flt", {static_cast<float>(number)});
    }
    EXPECT_EQ(definitions(groups),
              "static constexpr float flt0[] = { 0.f};\n"
              "static constexpr float flt1[] = { 1.f};\n"
              "static constexpr float flt10[] = { 10.f};\n"
              "static constexpr float flt11[] = { 11.f};\n"
              "static constexpr float flt2[] = { 2.f};\n"
              "static constexpr float flt3[] = { 3.f};\n"
              "static constexpr float flt4[] = { 4.f};\n"
              "static constexpr float flt5[] = { 5.f};\n"
              "static constexpr float flt6[] = { 6.f};\n"
              "static constexpr float flt7[] = { 7.f};\n"
              "static constexpr float flt8[] = { 8.f};\n"
              "static constexpr float flt9[] = { 9.f};\n");
}

TEST(ValueArrayDefinitions, ArraysStandInTheOrderOfTheirNamesWhateverTheirLength) {
    ValueArrays groups;
    std::vector<std::string> numbers;
    for (int number = 0; number < 1011; ++number) {
        intern(groups, "flt", {static_cast<float>(number)});
        numbers.push_back(std::to_string(number));
    }
    std::ranges::sort(numbers);
    std::string expected;
    for (const std::string& number : numbers) {
        // Up to 999999, the literal of a whole number begins with its digits.
        expected.append("static constexpr float flt").append(number);
        expected.append("[] = { ").append(number).append(".f};\n");
    }
    EXPECT_EQ(definitions(groups), expected);
}

TEST(ValueArrayDefinitions, IntegersAreWholeNumbersOfTheirFloats) {
    ValueArrays groups;
    intern(groups, "inte", {1, -2, 0});
    // The nearest floats of 16777217 and 2147483647.
    intern(groups, "inte", {16777216.0F, 2147483648.0F});
    EXPECT_EQ(definitions(groups),
              "static constexpr int inte0[] = { 1, -2, 0};\n"
              "static constexpr int inte1[] = { 16777216, 2147483648};\n");
}

TEST(ValueArrayDefinitions, WithoutValuesTheOpeningBraceIsMissing) {
    ValueArrays groups;
    intern(groups, "inte", {});
    intern(groups, "clr", {});
    EXPECT_EQ(definitions(groups),
              "static constexpr int inte0[] = };\n"
              "static constexpr float clr0[] = };\n");
}

TEST(ValueArrayDefinitions, NothingWithoutArrays) { EXPECT_EQ(definitions({}), ""); }

}  // namespace
}  // namespace metagen

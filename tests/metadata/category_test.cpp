#include "metadata/base_document.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace metagen {
namespace {

std::uint64_t bits(std::initializer_list<int> codes) {
    std::uint64_t all = 0;
    for (const int code : codes) all |= std::uint64_t{1} << static_cast<unsigned>(code);
    return all;
}

std::string nameOf(std::initializer_list<int> codes) {
    const CategoryResolution category = resolveCategory(bits(codes));
    return category.conflict ? "conflict" : std::string(category.name.value_or("none"));
}

std::uint32_t conflictOf(std::initializer_list<int> codes) {
    const CategoryResolution category = resolveCategory(bits(codes));
    EXPECT_TRUE(category.conflict);
    return category.conflictingBits;
}

TEST(ResolveCategory, OneBitIsItsName) {
    EXPECT_EQ(nameOf({}), "none");
    EXPECT_EQ(nameOf({6}), "render_channel");
    EXPECT_EQ(nameOf({18}), "none");
}

TEST(ResolveCategory, BitsFrom20UpDoNotCount) {
    EXPECT_EQ(nameOf({20, 40, 63}), "none");
    EXPECT_EQ(nameOf({2, 20, 63}), "node");
}

TEST(ResolveCategory, MinorBitsGiveWay) {
    EXPECT_EQ(nameOf({17, 16}), "volumetric");
    EXPECT_EQ(nameOf({17, 18, 19, 0}), "bitmap");
}

TEST(ResolveCategory, SettingsGiveWay) {
    EXPECT_EQ(nameOf({8, 4}), "light");
    EXPECT_EQ(nameOf({8, 15}), "uvw");
    EXPECT_EQ(nameOf({8, 17}), "settings");
    EXPECT_EQ(nameOf({7, 8}), "settings");
}

TEST(ResolveCategory, SomeCategoriesWinOverOthers) {
    EXPECT_EQ(nameOf({4, 5}), "light");
    EXPECT_EQ(nameOf({5, 1}), "material");
    EXPECT_EQ(nameOf({1, 9}), "BRDF");
    EXPECT_EQ(nameOf({9, 3}), "texture");
    EXPECT_EQ(nameOf({3, 2}), "geometry");
    EXPECT_EQ(nameOf({7, 3, 19, 8}), "geometry");
}

TEST(ResolveCategory, WhatIsLeftIsAConflict) {
    EXPECT_EQ(conflictOf({2, 6}), bits({2, 6}));
    EXPECT_EQ(conflictOf({2, 6, 8, 17, 25}), bits({2, 6}));
    EXPECT_EQ(conflictOf({10, 11}), bits({10, 11}));
}

TEST(ResolveCategory, OnlyMinorBitsAreAConflictOfNothing) {
    EXPECT_EQ(conflictOf({17, 18}), 0U);
    EXPECT_EQ(conflictOf({17, 18, 19}), 0U);
}

}  // namespace
}  // namespace metagen

#include "metadata/key_order.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace metagen {
namespace {

bool less(std::string_view left, std::string_view right) { return CombinedKeyLess()(left, right); }

bool equal(std::string_view left, std::string_view right) {
    return !less(left, right) && !less(right, left);
}

TEST(CombinedKeyOrder, TypeComesFirstAndEqualsOnlyItself) {
    EXPECT_TRUE(less("type", "a"));
    EXPECT_TRUE(less("type", ""));
    EXPECT_FALSE(less("a", "type"));
    EXPECT_FALSE(less("type", "type"));
    EXPECT_TRUE(less("type", "Type"));
    EXPECT_FALSE(less("Type", "type"));
    EXPECT_TRUE(equal("Type", "TYPE"));
}

TEST(CombinedKeyOrder, CaseAndUnderscoreAgainstDotFold) {
    EXPECT_TRUE(equal("Diffuse_Color", "diffuse.color"));
    EXPECT_TRUE(equal("A.B_", "a_b."));
    EXPECT_FALSE(equal("a-b", "a_b"));
}

TEST(CombinedKeyOrder, TheFirstFoldedDifferenceDecides) {
    EXPECT_TRUE(less("Abc", "abD"));
    EXPECT_TRUE(less("a_z", "aa"));  // "." comes before letters and digits
    EXPECT_TRUE(less("a_", "a0"));
    EXPECT_TRUE(less("a-", "a_"));  // "-" is just before "."
    EXPECT_FALSE(less("b", "A"));
}

TEST(CombinedKeyOrder, APrefixComesFirst) {
    EXPECT_TRUE(less("texture", "Texture_multiplier"));
    EXPECT_TRUE(less("", "a"));
    EXPECT_FALSE(less("ab", "a"));
}

TEST(CombinedKeyOrder, BytesOutsideAsciiCompareAsSignedNumbers) {
    EXPECT_TRUE(less("\xc3\xa4", "a"));
    EXPECT_TRUE(less("\x80", "\xff"));
    EXPECT_TRUE(less("\xff", "\x01"));
}

TEST(CombinedKeyOrder, ASetKeepsTheFirstOfEqualKeys) {
    const std::set<std::string, CombinedKeyLess> keys = {"b", "Type", "A_1", "a.1", "type", "B"};
    EXPECT_EQ(std::vector<std::string>(keys.begin(), keys.end()),
              (std::vector<std::string>{"type", "A_1", "b", "Type"}));
}

}  // namespace
}  // namespace metagen

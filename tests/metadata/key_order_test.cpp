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

TEST(CombinedKeyPrefix, IsInTheOrderOfTheKeysWhereItDiffers) {
    std::vector<std::string> keys = {"type", "Type", "typ", "type_", "typea", ""};
    for (const char first : {'\x80', '\xff', '\0', '_', 'A', 'z'}) {
        for (const char second : {'\x80', '\xc3', '.', 'a', 'Z'}) {
            keys.push_back({first});
            keys.push_back({first, second});
            keys.push_back({first, second, first});
            keys.push_back(std::string("sixbyt") + first + second);
            keys.push_back(std::string("seven_b") + first + second);
            keys.push_back(std::string("eight_by") + first + second);
        }
    }
    std::size_t different = 0;
    for (const std::string& left : keys) {
        for (const std::string& right : keys) {
            if (combinedKeyPrefix(left) == combinedKeyPrefix(right)) continue;
            ++different;
            EXPECT_EQ(combinedKeyPrefix(left) < combinedKeyPrefix(right), less(left, right))
                << testing::PrintToString(left) << ' ' << testing::PrintToString(right);
        }
    }
    EXPECT_GT(different, keys.size() * keys.size() * 3 / 4);
    EXPECT_EQ(combinedKeyPrefix("File.Name"), combinedKeyPrefix("file_name_of"));
}

}  // namespace
}  // namespace metagen

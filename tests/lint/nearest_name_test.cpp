#include "lint/nearest_name.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace metagen::lint {
namespace {

TEST(EditDistance, CountsInsertionsDeletionsReplacementsAndSwaps) {
    EXPECT_EQ(editDistance("depth", "depth", 3), 0U);
    EXPECT_EQ(editDistance("depth", "dept", 3), 1U);
    EXPECT_EQ(editDistance("depth", "deepth", 3), 1U);
    EXPECT_EQ(editDistance("depth", "depph", 3), 1U);
    EXPECT_EQ(editDistance("depth", "depht", 3), 1U);
    EXPECT_EQ(editDistance("", "ab", 3), 2U);
}

TEST(EditDistance, TakesNoNoticeOfCase) { EXPECT_EQ(editDistance("Depth", "dEPTH", 3), 0U); }

TEST(EditDistance, IsNeverBeyondTheLimit) {
    EXPECT_EQ(editDistance("depth", "color", 2), 2U);
    EXPECT_EQ(editDistance("a", "abcdef", 3), 3U);
    EXPECT_EQ(editDistance(std::string(65, 'a'), std::string(65, 'a'), 3), 3U);
}

std::string nearestOf(std::string_view name, const std::vector<std::string_view>& candidates) {
    NearestName finder;
    finder.begin(name);
    for (const std::string_view candidate : candidates) finder.consider(candidate);
    return std::string(finder.nearest());
}

TEST(NearestName, IsTheOneWithTheFewestDifferences) {
    EXPECT_EQ(nearestOf("fog_colour", {"fog_mult", "fog_color", "fog_colours"}), "fog_color");
    EXPECT_EQ(nearestOf("fog_color", {"fog_colors", "FOG_COLOR"}), "FOG_COLOR");
}

TEST(NearestName, IsEmptyWhereNoneIsNear) {
    EXPECT_EQ(nearestOf("on", {"off", "a"}), "");
    EXPECT_EQ(nearestOf("unheard_of", {"depth", "count"}), "");
    EXPECT_EQ(nearestOf("absorption", {"absorbtium"}), "absorbtium");
    EXPECT_EQ(nearestOf("absorption", {"absorbtiums"}), "");
}

TEST(NearestName, IsNoLongerLookedForWhenTooMuchWasAsked) {
    NearestName finder;
    const std::string name(60, 'a');
    const std::string other(60, 'b');
    const json::Member candidate = {name, json::Value()};
    EXPECT_EQ(finder.among(json::Object(&candidate, 1), name), name);
    for (int i = 0; i < 30'000; ++i) finder.among(json::Object(&candidate, 1), other);
    EXPECT_EQ(finder.among(json::Object(&candidate, 1), name), "");
}

}  // namespace
}  // namespace metagen::lint

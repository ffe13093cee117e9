#include "replay_sdk/text_vector.h"

#include <gtest/gtest.h>

namespace metagen::replay {
namespace {

TEST(TextVector, KeepsTextsAndNullsInTheirOrder) {
    TextVector texts;
    texts.append("one");
    texts.appendNull();
    texts.append("");
    EXPECT_EQ(texts.size(), 3U);
    EXPECT_STREQ(texts.at(0), "one");
    EXPECT_EQ(texts.at(1), nullptr);
    EXPECT_STREQ(texts.at(2), "");
}

TEST(TextVector, GivesNullBeyondItsEnd) {
    TextVector texts;
    texts.append("one");
    EXPECT_EQ(texts.at(1), nullptr);
    EXPECT_EQ(TextVector().at(0), nullptr);
}

TEST(TextVector, OwnsItsTexts) {
    std::string name = "name";
    TextVector texts;
    texts.append(name);
    name = "other";
    EXPECT_STREQ(texts.at(0), "name");
}

}  // namespace
}  // namespace metagen::replay

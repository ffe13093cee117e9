#include "lint/wording.h"

#include <gtest/gtest.h>

#include "json/document.h"

namespace metagen::lint {
namespace {

TEST(Printable, KeepsTextAndEscapesControlCharacters) {
    EXPECT_EQ(printable("a \"b\" \\ \xc3\xa4\xf0\x9f\x98\x80"),
              "a \"b\" \\ \xc3\xa4\xf0\x9f\x98\x80");
    for (const char* outermost : {"\xc2\x80", "\xdf\xbf", "\xe0\xa0\x80", "\xed\x9f\xbf",
                                  "\xee\x80\x80", "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf"}) {
        EXPECT_EQ(printable(outermost), outermost);
    }
    EXPECT_EQ(printable("\n\t\x01\x7f"), "\\n\\t\\u0001\\u007f");
}

TEST(Printable, ReplacesWhatIsNoUtf8) {
    EXPECT_EQ(printable("a\xff"), "a\xef\xbf\xbd");
    EXPECT_EQ(printable("\xc0\xaf"), "\xef\xbf\xbd\xef\xbf\xbd");
    for (const char* beyond : {"\xed\xa0\x80", "\xed\xbf\xbf", "\xe0\x9f\xbf", "\xf0\x8f\xbf\xbf",
                               "\xf4\x90\x80\x80", "\xf5\x80\x80\x80"}) {
        EXPECT_EQ(printable(beyond).substr(0, 3), "\xef\xbf\xbd") << testing::PrintToString(beyond);
    }
    EXPECT_EQ(printable("\xe2\x82"), "\xef\xbf\xbd\xef\xbf\xbd");
}

TEST(InQuotes, CutsALongTextBetweenCharacters) {
    EXPECT_EQ(inQuotes("a"), "\"a\"");
    std::string text(76, 'a');
    const std::string cut = '"' + text + "...\"";
    EXPECT_EQ(inQuotes(text + "\xc3\xa4" + "aaa"), cut);
    text += "aaaa";
    EXPECT_EQ(inQuotes(text), '"' + text + '"');
    text += 'a';
    EXPECT_EQ(inQuotes(text), '"' + text.substr(0, 77) + "...\"");
}

std::string descriptionOf(const char* text) {
    const json::Document document(text);
    return described(document.root());
}

TEST(Described, TellsSingleValuesAndTheKindOfOthers) {
    EXPECT_EQ(descriptionOf("2.50"), "2.5");
    EXPECT_EQ(descriptionOf("\"a\\n\""), "\"a\\n\"");
    EXPECT_EQ(descriptionOf("true"), "true");
    EXPECT_EQ(descriptionOf("null"), "null");
    EXPECT_EQ(descriptionOf("[1]"), "an array");
    EXPECT_EQ(descriptionOf("{}"), "an object");
}

}  // namespace
}  // namespace metagen::lint

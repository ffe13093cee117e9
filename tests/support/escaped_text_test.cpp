#include "support/escapes.h"

#include <gtest/gtest.h>

namespace metagen {
namespace {

std::string escaped(std::string_view text) {
    std::string out;
    appendEscaped(out, text);
    return out;
}

TEST(EscapedText, PlainTextStaysAsItIs) {
    EXPECT_EQ(escaped("Color(1, 0.5)/x"), "Color(1, 0.5)/x");
}

TEST(EscapedText, NamedEscapes) { EXPECT_EQ(escaped("\b\t\n\f\r\"\\"), "\\b\\t\\n\\f\\r\\\"\\\\"); }

TEST(EscapedText, OtherControlBytesAsLowerCaseHexadecimal) {
    EXPECT_EQ(escaped("a\x01z\x0b\x1f"), "a\\u0001z\\u000b\\u001f");
}

TEST(EscapedText, BytesFrom127UpAsTheyAre) {
    EXPECT_EQ(escaped("\x7f\x80\xc3\xa4\xff"), "\x7f\x80\xc3\xa4\xff");
}

TEST(EscapedText, ANulIsOneMoreControlByte) {
    EXPECT_EQ(escaped(std::string_view("ab\0cd\0", 6)), "ab\\u0000cd\\u0000");
}

TEST(EscapedText, AppendsToWhatIsThere) {
    std::string out = "x";
    appendEscaped(out, "\n");
    EXPECT_EQ(out, "x\\n");
}

}  // namespace
}  // namespace metagen

#include "support/standard_errors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace metagen {
namespace {

template <typename Exception, typename Call>
std::string messageOf(const Call& call) {
    try {
        call();
    } catch (const Exception& exception) {
        return exception.what();
    }
    return "nothing thrown";
}

TEST(InvalidMapKey, IsAnOutOfRangeErrorWithItsOwnText) {
    EXPECT_EQ(messageOf<std::out_of_range>(throwInvalidMapKey), "invalid map<K, T> key");
}

TEST(ParseInteger, SkipsBlanksAndIgnoresTheRest) {
    EXPECT_EQ(parseInteger(" 12abc"), 12);
    EXPECT_EQ(parseInteger("-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(parseInteger("+2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(parseInteger("010"), 10);
    EXPECT_EQ(parseInteger("0x10"), 0);
    EXPECT_EQ(parseInteger("2.9"), 2);
}

TEST(ParseInteger, NoDigitsIsAnInvalidArgument) {
    for (const char* text : {"", "abc", " - 1", "+"}) {
        EXPECT_EQ(messageOf<std::invalid_argument>([&] { parseInteger(text); }),
                  "invalid stoi argument")
            << text;
    }
}

TEST(ParseInteger, BeyondThirtyTwoBitsIsOutOfRange) {
    for (const char* text : {"99999999999", "2147483648", "-2147483649", "99999999999999999999"}) {
        EXPECT_EQ(messageOf<std::out_of_range>([&] { parseInteger(text); }),
                  "stoi argument out of range")
            << text;
    }
}

TEST(ParseFloat, TakesTheLongestNumber) {
    EXPECT_EQ(parseFloat(" 0.5x"), 0.5F);
    EXPECT_EQ(parseFloat("1e2e3"), 100.0F);
    EXPECT_EQ(parseFloat("-.25"), -0.25F);
    EXPECT_EQ(parseFloat("0"), 0.0F);
    EXPECT_EQ(parseFloat("1e+"), 1.0F);
}

TEST(ParseFloat, ReadsHexadecimalInfinityAndNan) {
    EXPECT_EQ(parseFloat("0x1.8p1"), 3.0F);
    EXPECT_EQ(parseFloat("inf"), std::numeric_limits<float>::infinity());
    EXPECT_EQ(parseFloat("-Infinity"), -std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(parseFloat("nan")));
}

TEST(ParseFloat, NoNumberIsAnInvalidArgument) {
    for (const char* text : {"", "abc", ".", "-"}) {
        EXPECT_EQ(messageOf<std::invalid_argument>([&] { parseFloat(text); }),
                  "invalid stof argument")
            << text;
    }
}

TEST(ParseFloat, TooLargeOrTooSmallIsOutOfRange) {
    for (const char* text : {"1e39", "-1e39", "1e-39", "1e-46", "1e-400", "0x1p-140"}) {
        EXPECT_EQ(messageOf<std::out_of_range>([&] { parseFloat(text); }),
                  "stof argument out of range")
            << text;
    }
}

TEST(ParseFloat, KeepsTheLargestAndTheSmallestNormalFloat) {
    EXPECT_EQ(parseFloat("3.40282347e+38"), std::numeric_limits<float>::max());
    EXPECT_EQ(parseFloat("1.17549435e-38"), std::numeric_limits<float>::min());
}

}  // namespace
}  // namespace metagen

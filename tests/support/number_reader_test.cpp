#include "support/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

#include "support/message_of.h"

namespace metagen {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

TEST(IsBlank, IsTrueForTheSixBlanksOnly) {
    const std::string blanks = " \t\n\v\f\r";
    for (int code = 0; code < 256; ++code) {
        const char byte = static_cast<char>(code);
        EXPECT_EQ(isBlank(byte), blanks.find(byte) != std::string::npos) << code;
    }
}

TEST(RestAfterInteger, IsWhatTheReaderIgnores) {
    EXPECT_EQ(restAfterInteger(" +12"), "");
    EXPECT_EQ(restAfterInteger("12 "), " ");
    EXPECT_EQ(restAfterInteger("2.7"), ".7");
    EXPECT_EQ(restAfterInteger("99999999999999999999x"), "x");
    EXPECT_EQ(restAfterInteger(" -x"), " -x");
}

TEST(RestAfterDouble, IsWhatTheReaderIgnores) {
    EXPECT_EQ(restAfterDouble(" -0.5e-3"), "");
    EXPECT_EQ(restAfterDouble("0,5"), ",5");
    EXPECT_EQ(restAfterDouble("50%"), "%");
    EXPECT_EQ(restAfterDouble("0x1.8p3x"), "x");
    EXPECT_EQ(restAfterDouble("1e999)"), ")");
    EXPECT_EQ(restAfterDouble("1e"), "e");
    EXPECT_EQ(restAfterDouble("+-1"), "+-1");
}

TEST(ReadIntegerPrefix, SkipsBlanksAndIgnoresWhatFollows) {
    EXPECT_EQ(readIntegerPrefix(" \t\n\v\f\r12abc"), 12);
    EXPECT_EQ(readIntegerPrefix("2.7"), 2);
    EXPECT_EQ(readIntegerPrefix("0x10"), 0);
}

TEST(ReadIntegerPrefix, TakesOneSign) {
    EXPECT_EQ(readIntegerPrefix("-5"), -5);
    EXPECT_EQ(readIntegerPrefix("+5"), 5);
    EXPECT_EQ(readIntegerPrefix("+-5"), 0);
    EXPECT_EQ(readIntegerPrefix("--5"), 0);
    EXPECT_EQ(readIntegerPrefix("- 5"), 0);
}

TEST(ReadIntegerPrefix, IsZeroWithoutADigit) {
    for (const char* text : {"", " ", "-", "abc", ")"}) EXPECT_EQ(readIntegerPrefix(text), 0);
}

TEST(ReadIntegerPrefix, SaturatesBeyond64Bits) {
    EXPECT_EQ(readIntegerPrefix("9223372036854775807"), largest);
    EXPECT_EQ(readIntegerPrefix("9223372036854775808"), largest);
    EXPECT_EQ(readIntegerPrefix("99999999999999999999999"), largest);
    EXPECT_EQ(readIntegerPrefix("-9223372036854775807"), -largest);
    EXPECT_EQ(readIntegerPrefix("-9223372036854775808"), smallest);
    EXPECT_EQ(readIntegerPrefix("-99999999999999999999999"), smallest);
}

TEST(ReadDoublePrefix, ReadsTheLongestNumber) {
    EXPECT_EQ(readDoublePrefix(" \t\n\v\f\r1.5e2))"), 150);
    EXPECT_EQ(readDoublePrefix("1e"), 1);
    EXPECT_EQ(readDoublePrefix(".5"), 0.5);
    EXPECT_EQ(readDoublePrefix("5."), 5);
    EXPECT_EQ(readDoublePrefix("1,5"), 1);
}

TEST(ReadDoublePrefix, TakesOneSign) {
    EXPECT_EQ(readDoublePrefix("-2.5"), -2.5);
    EXPECT_EQ(readDoublePrefix("+2.5"), 2.5);
    EXPECT_EQ(readDoublePrefix("+-2.5"), 0);
    EXPECT_EQ(readDoublePrefix("--2.5"), 0);
    EXPECT_TRUE(std::signbit(readDoublePrefix("-0")));
    EXPECT_TRUE(std::signbit(readDoublePrefix("-1e-400")));
}

TEST(ReadDoublePrefix, TakesNoSignWithoutANumber) {
    for (const char* text : {"-", "-.", "-abc", "-)", "- 1", "--1"}) {
        EXPECT_FALSE(std::signbit(readDoublePrefix(text))) << text;
    }
}

TEST(ReadDoublePrefix, IsZeroWithoutANumber) {
    for (const char* text : {"", " ", "-", ".", "e5", "abc", ")"}) {
        EXPECT_EQ(readDoublePrefix(text), 0) << text;
    }
}

TEST(ReadDoublePrefix, ReadsHexadecimalNumbers) {
    EXPECT_EQ(readDoublePrefix("0x1.8p3"), 12);
    EXPECT_EQ(readDoublePrefix("-0XfF"), -255);
    EXPECT_EQ(readDoublePrefix("0xA"), 10);
    EXPECT_EQ(readDoublePrefix("0x.F"), 0.9375);
    EXPECT_EQ(readDoublePrefix("0x.8"), 0.5);
    EXPECT_EQ(readDoublePrefix("0x1p"), 1);
}

TEST(ReadDoublePrefix, ReadsTheZeroOfAnUnfinishedHexadecimalNumber) {
    for (const char* text : {"0x", "0x.", "0xg", "0x-1", "0xinf", "0xnan"}) {
        EXPECT_EQ(readDoublePrefix(text), 0) << text;
    }
}

TEST(ReadDoublePrefix, ReadsInfinityAndNan) {
    EXPECT_EQ(readDoublePrefix("inf"), infinity);
    EXPECT_EQ(readDoublePrefix("-INFINITY"), -infinity);
    EXPECT_TRUE(std::isnan(readDoublePrefix("nan")));
    EXPECT_TRUE(std::isnan(readDoublePrefix("-NaN(12)")));
    EXPECT_FALSE(std::signbit(readDoublePrefix("nan")));
    EXPECT_TRUE(std::signbit(readDoublePrefix("-nan")));
}

TEST(ReadDoublePrefix, IsAnInfinityForTooLargeNumbers) {
    EXPECT_EQ(readDoublePrefix("1e309"), infinity);
    EXPECT_EQ(readDoublePrefix("-1e999999999999999999999"), -infinity);
    EXPECT_EQ(readDoublePrefix("1" + std::string(400, '0')), infinity);
    EXPECT_EQ(readDoublePrefix("0." + std::string(400, '0') + "1e+1000"), infinity);
    EXPECT_EQ(readDoublePrefix("1E309"), infinity);
    EXPECT_EQ(readDoublePrefix("0." + std::string(5000, '0') + "1e+10000"), infinity);
    EXPECT_EQ(readDoublePrefix("0x1p+5000"), infinity);
    EXPECT_EQ(readDoublePrefix("0x1P+5000"), infinity);
    // A hexadecimal place is four binary ones: 2^(4 * 1000 - 2500).
    EXPECT_EQ(readDoublePrefix("0x1" + std::string(1000, '0') + "p-2500"), infinity);
}

TEST(ReadDoublePrefix, IsZeroForTooSmallNumbers) {
    EXPECT_EQ(readDoublePrefix("1e-400"), 0);
    EXPECT_EQ(readDoublePrefix("1e-999999999999999999999"), 0);
    EXPECT_EQ(readDoublePrefix("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(readDoublePrefix("1" + std::string(400, '0') + "e-1000"), 0);
    EXPECT_EQ(readDoublePrefix("1E-400"), 0);
    EXPECT_EQ(readDoublePrefix("0." + std::string(400, '0') + "1e50"), 0);
    EXPECT_EQ(readDoublePrefix("0x1p-5000"), 0);
    EXPECT_EQ(readDoublePrefix("0x1P-5000"), 0);
    EXPECT_EQ(readDoublePrefix("0x0." + std::string(1000, '0') + "1p+2500"), 0);
}

TEST(ReadDoublePrefix, TakesTheSizeOfANumberFromNothingBehindIt) {
    EXPECT_EQ(readDoublePrefix("1" + std::string(400, '0') + ", 1e-999"), infinity);
    EXPECT_EQ(readDoublePrefix("0." + std::string(400, '0') + "1, 1e+999"), 0);
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
    EXPECT_TRUE(std::signbit(parseFloat("-nan")));
}

TEST(ParseFloat, NoNumberIsAnInvalidArgument) {
    for (const char* text : {"", "abc", ".", "-"}) {
        EXPECT_EQ(messageOf<std::invalid_argument>([&] { parseFloat(text); }),
                  "invalid stof argument")
            << text;
    }
}

TEST(ParseFloat, TooLargeOrTooSmallIsOutOfRange) {
    for (const char* text : {"1e39", "-1e39", "3.5e38", "1e999", "1e-46", "-1e-46", "1e-400",
                             "0x1p-151", "0x1p+128"}) {
        EXPECT_EQ(messageOf<std::out_of_range>([&] { parseFloat(text); }),
                  "stof argument out of range")
            << text;
    }
}

TEST(ParseFloat, KeepsEveryFloat) {
    EXPECT_EQ(parseFloat("3.40282347e+38"), std::numeric_limits<float>::max());
    EXPECT_EQ(parseFloat("1.17549435e-38"), std::numeric_limits<float>::min());
    EXPECT_EQ(parseFloat("1.17549e-38"), 0x1.ffff84p-127F);  // as six digits tell the smallest
    EXPECT_EQ(parseFloat("1e-39"), 0x1.5c73p-130F);
    EXPECT_EQ(parseFloat("-1e-45"), -std::numeric_limits<float>::denorm_min());
    EXPECT_EQ(parseFloat("0x1p-149"), std::numeric_limits<float>::denorm_min());
}

TEST(ParseFloat, TakesAnyWayToWriteZero) {
    for (const char* text : {"0", "-0", "0.000", "0e5", "0e-999", "0x0p-999", ".0"}) {
        EXPECT_EQ(parseFloat(text), 0.0F) << text;
    }
    EXPECT_TRUE(std::signbit(parseFloat("-0")));
}

}  // namespace
}  // namespace metagen

#include "support/numbers.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace metagen {
namespace {

std::string general(double number) {
    std::string out;
    appendGeneral(out, number);
    return out;
}

std::string integer(std::int64_t number) {
    std::string out;
    appendInteger(out, number);
    return out;
}

std::string literal(float number) {
    std::string out;
    appendFloatLiteral(out, number);
    return out;
}

std::string literal(std::int32_t number) {
    std::string out;
    appendIntegerLiteral(out, number);
    return out;
}

std::string listOf(std::span<const float> numbers) {
    std::string out;
    appendFloatList(out, numbers);
    return out;
}

TEST(GeneralNumber, SixSignificantDigitsInTheShortestForm) {
    EXPECT_EQ(general(1), "1");
    EXPECT_EQ(general(0.5), "0.5");
    EXPECT_EQ(general(static_cast<double>(0.1F)), "0.1");
    EXPECT_EQ(general(1e-7), "1e-07");
    EXPECT_EQ(general(0.0001), "0.0001");
    EXPECT_EQ(general(0.00001), "1e-05");
    EXPECT_EQ(general(123456789), "1.23457e+08");
    EXPECT_EQ(general(999999.5), "1e+06");
    EXPECT_EQ(general(-2.0 / 3.0), "-0.666667");
    EXPECT_EQ(general(1e300), "1e+300");
}

TEST(GeneralNumber, RoundsTiesToEven) {
    EXPECT_EQ(general(100000.5), "100000");
    EXPECT_EQ(general(100000.5 + 1e-9), "100001");  // which no float tells from the tie
    EXPECT_EQ(general(100001.5), "100002");
    EXPECT_EQ(general(-250000.5), "-250000");
    EXPECT_EQ(general(0.5000005), "0.5");  // a little less than a tie, as a double
    EXPECT_EQ(general(8388.6075), "8388.61");
    EXPECT_EQ(general(3.0517578125e-05), "3.05176e-05");
    EXPECT_EQ(general(0.000244140625), "0.000244141");
    EXPECT_EQ(general(2.000005), "2");
    EXPECT_EQ(general(99999.96875), "100000");
    EXPECT_EQ(general(999999.4375), "999999");
    EXPECT_EQ(general(0.0999999940395355224609375), "0.1");
    EXPECT_EQ(general(0.000099999997), "0.0001");
}

TEST(GeneralNumber, IsTheTextOfTheStandardLibrary) {
    std::mt19937 random(1);
    for (int sample = 0; sample < 200'000; ++sample) {
        // Every sign and exponent of a float, and mantissas with many and with few bits.
        auto bits = static_cast<std::uint32_t>(random());
        if (sample % 2 == 0) bits &= ~0U << random() % 24;
        const auto number = static_cast<double>(std::bit_cast<float>(bits));
        if (std::isnan(number)) continue;
        char expected[32];
        std::snprintf(expected, sizeof expected, "%g", number);
        ASSERT_EQ(general(number), expected) << std::hex << bits;
    }
}

TEST(GeneralNumber, ZeroKeepsItsSign) {
    EXPECT_EQ(general(0.0), "0");
    EXPECT_EQ(general(-0.0), "-0");
}

TEST(GeneralNumber, InfinitiesAndNan) {
    EXPECT_EQ(general(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(general(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(general(std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(general(-std::numeric_limits<double>::quiet_NaN()), "-nan");
}

TEST(IntegerText, SmallestAndLargest) {
    EXPECT_EQ(integer(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(integer(2147483647), "2147483647");
    EXPECT_EQ(integer(0), "0");
}

TEST(IntegerLiteral, OnlyTheSmallestHasAName) {
    EXPECT_EQ(literal(std::numeric_limits<std::int32_t>::min()), "INT_MIN");
    EXPECT_EQ(literal(-2147483647), "-2147483647");
    EXPECT_EQ(literal(0), "0");
}

TEST(FloatLiteral, WholeNumbersUpToSixDigitsEndInPointF) {
    EXPECT_EQ(literal(1.0F), "1.f");
    EXPECT_EQ(literal(-3.0F), "-3.f");
    EXPECT_EQ(literal(0.0F), "0.f");
    EXPECT_EQ(literal(999999.0F), "999999.f");
    EXPECT_EQ(literal(-999999.0F), "-999999.f");
}

TEST(FloatLiteral, OtherNumbersEndInF) {
    EXPECT_EQ(literal(0.5F), "0.5f");
    EXPECT_EQ(literal(0.1234567F), "0.123457f");
    EXPECT_EQ(literal(1000000.0F), "1e+06f");
    EXPECT_EQ(literal(-1000000.0F), "-1e+06f");
    EXPECT_EQ(literal(1234567.0F), "1.23457e+06f");
    EXPECT_EQ(literal(1.0F / 3.0F), "0.333333f");
}

TEST(FloatLiteral, FractionsNextToTheBound) {
    EXPECT_EQ(literal(999999.5F), "1e+06f");
    EXPECT_EQ(literal(999998.5F), "999998f");  // six digits, ties to even
}

TEST(FloatLiteral, InfinityAndNanAreNoWholeNumbers) {
    EXPECT_EQ(literal(std::numeric_limits<float>::infinity()), "inff");
    EXPECT_EQ(literal(std::numeric_limits<float>::quiet_NaN()), "nanf");
}

TEST(FloatList, LiteralsSeparatedByCommaAndBlank) {
    EXPECT_EQ(listOf(std::array{1.0F, 0.5F, 0.25F}), "1.f, 0.5f, 0.25f");
    EXPECT_EQ(listOf(std::array{2.0F}), "2.f");
    EXPECT_EQ(listOf({}), "");
}

}  // namespace
}  // namespace metagen

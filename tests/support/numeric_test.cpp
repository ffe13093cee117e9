#include "support/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace metagen {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t smallest32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t smallest64 = std::numeric_limits<std::int64_t>::min();

TEST(ToInt32, TruncatesTowardZero) {
    EXPECT_EQ(toInt32(2.9), 2);
    EXPECT_EQ(toInt32(-1.5), -1);
    EXPECT_EQ(toInt32(-0.9), 0);
}

TEST(ToInt32, KeepsBothEndsOfTheRange) {
    EXPECT_EQ(toInt32(2147483647.9), 2147483647);
    EXPECT_EQ(toInt32(-2147483648.9), smallest32);
    EXPECT_EQ(toInt32(-2147483647.0), -2147483647);
}

TEST(ToInt32, WhatDoesNotFitIsTheSmallest) {
    for (const double number : {2147483648.0, -2147483649.0, 1e300, infinity, -infinity, nan}) {
        EXPECT_EQ(toInt32(number), smallest32) << number;
    }
}

TEST(ToInt64, TruncatesTowardZeroAndIsTheSmallestBeyondItsRange) {
    EXPECT_EQ(toInt64(-7.9), -7);
    EXPECT_EQ(toInt64(4294967296.5), 4294967296);
    EXPECT_EQ(toInt64(9223372036854774784.0), 9223372036854774784);
    for (const double number : {9223372036854775808.0, -1e19, infinity, nan}) {
        EXPECT_EQ(toInt64(number), smallest64) << number;
    }
}

TEST(ToFloat, RoundsToTheNearest) {
    EXPECT_EQ(toFloat(0.1), 0.1F);
    EXPECT_EQ(toFloat(1e-300), 0.0F);
    EXPECT_TRUE(std::isnan(toFloat(nan)));
}

TEST(ToFloat, RoundsAroundTheLargestFloat) {
    constexpr float largest = std::numeric_limits<float>::max();
    EXPECT_EQ(toFloat(0x1.fffffefp+127), largest);
    EXPECT_EQ(toFloat(-0x1.fffffefp+127), -largest);
    EXPECT_EQ(toFloat(static_cast<double>(largest)), largest);
}

TEST(ToFloat, BeyondItsRangeIsAnInfinityOfTheSameSign) {
    constexpr float floatInfinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(toFloat(0x1.ffffffp+127), floatInfinity);
    EXPECT_EQ(toFloat(-0x1.ffffffp+127), -floatInfinity);
    EXPECT_EQ(toFloat(1e300), floatInfinity);
    EXPECT_EQ(toFloat(-infinity), -floatInfinity);
}

TEST(LowBitsToInt32, KeepsTheLowBits) {
    EXPECT_EQ(lowBitsToInt32(0x1'0000'0005), 5);
    EXPECT_EQ(lowBitsToInt32(0xFFFF'FFFF), -1);
    EXPECT_EQ(lowBitsToInt32(smallest64), 0);
    EXPECT_EQ(lowBitsToInt32(std::numeric_limits<std::int64_t>::max()), -1);
}

}  // namespace
}  // namespace metagen

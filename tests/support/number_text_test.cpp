#include "support/number_text.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

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

TEST(GeneralNumber, ZeroKeepsItsSign) {
    EXPECT_EQ(general(0.0), "0");
    EXPECT_EQ(general(-0.0), "-0");
}

TEST(GeneralNumber, InfinitiesAndNan) {
    EXPECT_EQ(general(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(general(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(general(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(IntegerText, SmallestAndLargest) {
    EXPECT_EQ(integer(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(integer(2147483647), "2147483647");
    EXPECT_EQ(integer(0), "0");
}

TEST(FloatLiteral, WholeNumbersUpToSixDigitsEndInPointF) {
    EXPECT_EQ(formatFloatLiteral(1.0F), "1.f");
    EXPECT_EQ(formatFloatLiteral(-3.0F), "-3.f");
    EXPECT_EQ(formatFloatLiteral(0.0F), "0.f");
    EXPECT_EQ(formatFloatLiteral(999999.0F), "999999.f");
    EXPECT_EQ(formatFloatLiteral(-999999.0F), "-999999.f");
}

TEST(FloatLiteral, OtherNumbersEndInF) {
    EXPECT_EQ(formatFloatLiteral(0.5F), "0.5f");
    EXPECT_EQ(formatFloatLiteral(0.1234567F), "0.123457f");
    EXPECT_EQ(formatFloatLiteral(1000000.0F), "1e+06f");
    EXPECT_EQ(formatFloatLiteral(-1000000.0F), "-1e+06f");
    EXPECT_EQ(formatFloatLiteral(1234567.0F), "1.23457e+06f");
    EXPECT_EQ(formatFloatLiteral(1.0F / 3.0F), "0.333333f");
}

TEST(FloatLiteral, FractionsNextToTheBound) {
    EXPECT_EQ(formatFloatLiteral(999999.5F), "1e+06f");
    EXPECT_EQ(formatFloatLiteral(999998.5F), "999998f");  // six digits, ties to even
}

TEST(FloatLiteral, InfinityAndNanAreNoWholeNumbers) {
    EXPECT_EQ(formatFloatLiteral(std::numeric_limits<float>::infinity()), "inff");
    EXPECT_EQ(formatFloatLiteral(std::numeric_limits<float>::quiet_NaN()), "nanf");
}

TEST(FloatList, LiteralsSeparatedByCommaAndBlank) {
    EXPECT_EQ(formatFloatList(std::array{1.0F, 0.5F, 0.25F}), "1.f, 0.5f, 0.25f");
    EXPECT_EQ(formatFloatList(std::array{2.0F}), "2.f");
    EXPECT_EQ(formatFloatList({}), "");
}

}  // namespace
}  // namespace metagen

#include "metadata/default_value_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace metagen {
namespace {

using Floats = std::vector<float>;

/// The kind and the text of the value that a guide describes, or the error's text.
std::string guided(std::int32_t code, float single, const Floats& sequence) try {
    const QyraValue value = valueOfGuide(code, single, sequence);
    std::string text = std::to_string(value.kind) + " ";
    appendDefaultValueText(text, value);
    return text;
} catch (const std::invalid_argument& exception) {
    return exception.what();
}

const Floats nine = {1, 2, 3, 4, 5, 6, 7, 8, 9};
const Floats twelve = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
constexpr const char* wrongSize = "Wrong size of default values";
constexpr const char* wrongType = "Wrong type of default values";

TEST(ValueOfGuide, IntegersAreTheSingleFloatTruncated) {
    EXPECT_EQ(guided(0, 2.9F, {}), "0 2");
    EXPECT_EQ(guided(14, -2.9F, {7}), "0 -2");
    EXPECT_EQ(guided(0, 3e9F, {}), "0 -2147483648");
    EXPECT_EQ(guided(0, std::numeric_limits<float>::quiet_NaN(), {}), "0 -2147483648");
}

TEST(ValueOfGuide, FloatsAreTheSingleFloat) {
    for (const std::int32_t code : {1, 2, 13}) EXPECT_EQ(guided(code, 0.25F, {7, 7}), "1 0.25");
}

TEST(ValueOfGuide, BooleansAreTrueUnlessZero) {
    EXPECT_EQ(guided(3, 0, {}), "3 0");
    EXPECT_EQ(guided(3, -0.1F, {}), "3 1");
}

TEST(ValueOfGuide, VectorsAndColorsTakeThreeFloatsOrOne) {
    EXPECT_EQ(guided(4, 9, {1, 2, 3}), "4 Vector(1, 2, 3)");
    EXPECT_EQ(guided(4, 9, {2}), "4 Vector(2, 2, 2)");
    EXPECT_EQ(guided(5, 9, {1, 2, 3}), "5 Color(1, 2, 3)");
    EXPECT_EQ(guided(5, 9, {0.5F}), "5 Color(0.5, 0.5, 0.5)");
    for (const Floats& sequence : {Floats{}, Floats{1, 2}, Floats{1, 2, 3, 4}}) {
        EXPECT_EQ(guided(4, 9, sequence), wrongSize);
        EXPECT_EQ(guided(5, 9, sequence), wrongSize);
    }
}

TEST(ValueOfGuide, AcolorsTakeFourFloatsOrAreOpaque) {
    EXPECT_EQ(guided(6, 9, {1, 2, 3, 4}), "6 AColor(1, 2, 3, 4)");
    EXPECT_EQ(guided(6, 9, {1, 2, 3}), "6 AColor(1, 2, 3, 1)");
    EXPECT_EQ(guided(6, 9, {0.5F}), "6 AColor(0.5, 0.5, 0.5, 1)");
    for (const Floats& sequence : {Floats{}, Floats{1, 2}, Floats{1, 2, 3, 4, 5}}) {
        EXPECT_EQ(guided(6, 9, sequence), wrongSize);
    }
}

TEST(ValueOfGuide, MatricesTakeNineFloats) {
    for (const std::int32_t code : {7, 16}) {
        EXPECT_EQ(guided(code, 0, nine),
                  "7 Matrix(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9))");
        EXPECT_EQ(guided(code, 0, twelve), wrongSize);
        EXPECT_EQ(guided(code, 0, {}), wrongSize);
    }
}

TEST(ValueOfGuide, TransformsTakeTwelveFloats) {
    for (const std::int32_t code : {8, 17}) {
        EXPECT_EQ(guided(code, 0, twelve),
                  "8 Transform(Matrix(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9)), "
                  "Vector(10, 11, 12))");
        EXPECT_EQ(guided(code, 0, nine), wrongSize);
    }
}

TEST(ValueOfGuide, PluginsAndTexturesAreColors) {
    for (const std::int32_t code : {10, 11}) {
        EXPECT_EQ(guided(code, 0, {1, 2, 3}), "5 Color(1, 2, 3)");
        EXPECT_EQ(guided(code, 0, {1, 2, 3, 4}), "6 AColor(1, 2, 3, 4)");
        EXPECT_EQ(guided(code, 0, {0.5F}), "5 Color(0.5, 0.5, 0.5)");
        EXPECT_EQ(guided(code, 0, {1, 2}), wrongSize);
        EXPECT_EQ(guided(code, 0, {}), wrongSize);
    }
}

TEST(ValueOfGuide, VectorTexturesTakeTheFirstThreeFloatsWhateverTheLength) {
    EXPECT_EQ(guided(15, 0, {1, 2, 3, 4, 5}), "4 Vector(1, 2, 3)");
    EXPECT_EQ(guided(15, 0, {1, 2}), "4 Vector(1, 2, 0)");
    EXPECT_EQ(guided(15, 0, {}), "4 Vector(0, 0, 0)");
}

TEST(ValueOfGuide, OtherTypesHaveNoGuide) {
    for (const std::int32_t code : {9, 12, 18, 100, 105, 10001, -1}) {
        EXPECT_EQ(guided(code, 1, {1, 2, 3}), wrongType) << code;
    }
}

}  // namespace
}  // namespace metagen

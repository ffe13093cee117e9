#include "metadata/default_value_parser.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace metagen {
namespace {

template <typename Element>
struct Read {
    bool complete;
    std::vector<Element> elements;

    bool operator==(const Read&) const = default;
};

/// What a list reader returns and appends to an empty sequence.
template <typename Element>
Read<Element> read(bool (*reader)(std::string_view, std::vector<Element>&), std::string_view text) {
    Read<Element> result = {};
    result.complete = reader(text, result.elements);
    return result;
}

using Integers = Read<std::int32_t>;
using Floats = Read<float>;

using Vector3 = std::array<float, 3>;
using AColor = std::array<float, 4>;
using Matrix = std::array<float, 9>;
using Transform = std::array<float, 12>;

TEST(ReadFixedFields, NumbersTheFieldsFromTheTypeWord) {
    std::array<float, 2> out = {};
    EXPECT_TRUE(readFixedFields("7(1,2)", std::array{0, 2}, out));
    EXPECT_EQ(out, (std::array{7.0F, 2.0F}));
}

TEST(ReadFixedFields, ReadsTheWantedFieldsAlone) {
    constexpr std::array fields = {1, 2, 3};
    std::array<float, 3> out = {};
    EXPECT_TRUE(readFixedFields("Color(1,2,3)", std::span(fields).first(2), out));
    EXPECT_EQ(out, (std::array{1.0F, 2.0F, 0.0F}));
}

TEST(ReadFixedFields, KeepsWhatItReadWhenFieldsAreMissing) {
    std::array<float, 3> out = {};
    EXPECT_FALSE(readFixedFields("Color(1,2)", std::array{1, 2, 3}, out));
    EXPECT_EQ(out, (std::array{1.0F, 2.0F, 0.0F}));
}

TEST(ReadFixedFields, CountsTheFieldThatTheTextEnds) {
    std::array<float, 2> out = {9.0F, 9.0F};
    EXPECT_TRUE(readFixedFields("Color(1,", std::array{1, 2}, out));
    EXPECT_EQ(out, (std::array{1.0F, 0.0F}));
}

TEST(ReadFixedFields, EndsAtANul) {
    std::array<float, 2> out = {};
    EXPECT_FALSE(readFixedFields(std::string_view("a(1\0,2)", 7), std::array{1, 2}, out));
}

TEST(ParseVector3, ReadsThreeFieldsOfAnyWord) {
    Vector3 out = {};
    EXPECT_TRUE(parseVector3("Foo(1, -2.5, 1e-3)", out));
    EXPECT_EQ(out, (Vector3{1.0F, -2.5F, 1e-3F}));
}

TEST(ParseVector3, IgnoresFurtherFields) {
    Vector3 out = {};
    EXPECT_TRUE(parseVector3("Color(1,1,1,1)", out));
    EXPECT_EQ(out, (Vector3{1.0F, 1.0F, 1.0F}));
}

TEST(ParseVector3, RefusesTooFewFields) {
    Vector3 out = {};
    EXPECT_FALSE(parseVector3("Color(1,1)", out));
    EXPECT_FALSE(parseVector3("0.5", out));
    EXPECT_FALSE(parseVector3("", out));
    EXPECT_FALSE(parseVector3(std::string_view(), out));
}

TEST(ParseVector3, ReadsWhatIsNoNumberAsZero) {
    Vector3 out = {9.0F, 9.0F, 9.0F};
    EXPECT_TRUE(parseVector3("Vector(a,,x1)", out));
    EXPECT_EQ(out, (Vector3{0.0F, 0.0F, 0.0F}));
}

TEST(ParseVector3, ReadsHexadecimalInfiniteAndMissingNumbers) {
    Vector3 out = {};
    EXPECT_TRUE(parseVector3("Vector(0x1p4, -inf, nan)", out));
    EXPECT_EQ(out[0], 16.0F);
    EXPECT_EQ(out[1], -std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(out[2]));
}

TEST(ParseVector3, NarrowsTheDoubleToAFloat) {
    Vector3 out = {};
    EXPECT_TRUE(parseVector3("Vector(0.1, 1e39, 1e-320)", out));
    EXPECT_EQ(out, (Vector3{0.1F, std::numeric_limits<float>::infinity(), 0.0F}));
}

TEST(ParseAColor, ReadsFourFields) {
    AColor out = {};
    EXPECT_TRUE(parseAColor("AColor(1,0,0,0.5)", out));
    EXPECT_EQ(out, (AColor{1.0F, 0.0F, 0.0F, 0.5F}));
}

TEST(ParseAColor, RefusesAColorTextThatParseVector3Takes) {
    AColor acolor = {};
    Vector3 color = {};
    EXPECT_FALSE(parseAColor("Color(1,0,0)", acolor));
    EXPECT_TRUE(parseVector3("Color(1,0,0)", color));
    EXPECT_EQ(color, (Vector3{1.0F, 0.0F, 0.0F}));
}

TEST(ParseMatrix, ReadsThreeRows) {
    Matrix out = {};
    EXPECT_TRUE(parseMatrix("Matrix(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9))", out));
    EXPECT_EQ(out, (Matrix{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST(ParseMatrix, RefusesTwoRows) {
    Matrix out = {};
    EXPECT_FALSE(parseMatrix("Matrix(Vector(1, 2, 3), Vector(4, 5, 6))", out));
}

TEST(ParseTransform, ReadsTheMatrixAndTheOffset) {
    Transform out = {};
    EXPECT_TRUE(parseTransform(
        "Transform(Matrix(Vector(1,0,0),Vector(0,1,0),Vector(0,0,1)),Vector(5,6,7))", out));
    EXPECT_EQ(out, (Transform{1, 0, 0, 0, 1, 0, 0, 0, 1, 5, 6, 7}));
}

TEST(ParseTransform, RefusesAMatrix) {
    Transform out = {};
    EXPECT_FALSE(parseTransform("Matrix(Vector(1,0,0),Vector(0,1,0),Vector(0,0,1))", out));
}

TEST(ParseIntList, ReadsEveryElement) {
    EXPECT_EQ(read(parseIntList, "IntList(1, -2, +3)"), (Integers{true, {1, -2, 3}}));
}

TEST(ParseIntList, AppendsToTheSequence) {
    std::vector<std::int32_t> numbers = {7};
    EXPECT_TRUE(parseIntList("List(8)", numbers));
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{7, 8}));
}

TEST(ParseIntList, IsTrueForAnEmptyList) {
    EXPECT_EQ(read(parseIntList, "List()"), (Integers{true, {}}));
    EXPECT_EQ(read(parseIntList, "List( )"), (Integers{true, {}}));
}

TEST(ParseIntList, ReadsAZeroOfAnEmptyListWithAPrefix) {
    EXPECT_EQ(read(parseIntList, "IntList()"), (Integers{true, {0}}));
}

TEST(ParseIntList, ReadsWhatIsNoIntegerAsItsBeginningOrZero) {
    EXPECT_EQ(read(parseIntList, "List(abc, 2.7, , 4x)"), (Integers{true, {0, 2, 0, 4}}));
    EXPECT_EQ(read(parseIntList, "List(,1)"), (Integers{true, {0, 1}}));
}

TEST(ParseIntList, KeepsTheLowBitsOfTheSaturatedInteger) {
    EXPECT_EQ(read(parseIntList, "List(4294967301, 2147483648, -2147483649)"),
              (Integers{true, {5, -2147483647 - 1, 2147483647}}));
    EXPECT_EQ(read(parseIntList, "List(99999999999999999999, -99999999999999999999)"),
              (Integers{true, {-1, 0}}));
}

TEST(ParseIntList, RefusesWhatIsNoList) {
    EXPECT_EQ(read(parseIntList, "Color(1, 1, 1)"), (Integers{false, {}}));
    EXPECT_EQ(read(parseIntList, "1"), (Integers{false, {}}));
    EXPECT_EQ(read(parseIntList, ""), (Integers{false, {}}));
}

TEST(ParseFloatList, ReadsEveryElement) {
    EXPECT_EQ(read(parseFloatList, "FloatList(0.5, 1e2, 0x8, abc)"),
              (Floats{true, {0.5F, 100.0F, 8.0F, 0.0F}}));
}

TEST(ParseFloatList, AppendsToTheSequence) {
    std::vector<float> numbers = {7.0F};
    EXPECT_TRUE(parseFloatList("List(8)", numbers));
    EXPECT_EQ(numbers, (std::vector{7.0F, 8.0F}));
}

TEST(ParseFloatList, ReadsAZeroOfAnEmptyListWithAPrefix) {
    EXPECT_EQ(read(parseFloatList, "FloatList()"), (Floats{true, {0.0F}}));
}

TEST(ParseFloatList, RefusesWhatIsNoList) {
    EXPECT_EQ(read(parseFloatList, "TransformList(1)"), (Floats{false, {}}));
}

TEST(ParseVector3List, ReadsEveryElement) {
    EXPECT_EQ(read(parseVector3List, "ColorList(Color(1,1,1), Color(0,0.5,0))"),
              (Floats{true, {1.0F, 1.0F, 1.0F, 0.0F, 0.5F, 0.0F}}));
}

TEST(ParseVector3List, AppendsToTheSequence) {
    std::vector<float> colors = {7.0F, 8.0F, 9.0F};
    EXPECT_TRUE(parseVector3List("List(Color(1,2,3))", colors));
    EXPECT_EQ(colors, (std::vector{7.0F, 8.0F, 9.0F, 1.0F, 2.0F, 3.0F}));
}

TEST(ParseVector3List, IsTrueForAnEmptyPlainListOnly) {
    EXPECT_EQ(read(parseVector3List, "List()"), (Floats{true, {}}));
    EXPECT_EQ(read(parseVector3List, "ColorList()"), (Floats{false, {}}));
}

TEST(ParseVector3List, KeepsTheElementsBeforeTheOneThatItRefuses) {
    EXPECT_EQ(read(parseVector3List, "List(Color(1,2,3), 5, Color(4,5,6))"),
              (Floats{false, {1.0F, 2.0F, 3.0F}}));
}

TEST(ParseVector3List, RefusesWhatIsNoList) {
    EXPECT_EQ(read(parseVector3List, "VectorList(Vector(1,2,3))"), (Floats{false, {}}));
}

TEST(ParseAColorList, ReadsEveryElement) {
    EXPECT_EQ(read(parseAColorList, "List(AColor(1,2,3,4),AColor(5,6,7,8))"),
              (Floats{true, {1, 2, 3, 4, 5, 6, 7, 8}}));
}

TEST(ParseMatrixList, RefusesMatricesBecauseTheyAreCutAtTheirFirstRow) {
    EXPECT_EQ(read(parseMatrixList, "List(Matrix(Vector(1,0,0),Vector(0,1,0),Vector(0,0,1)))"),
              (Floats{false, {}}));
}

TEST(ParseMatrixList, ReadsElementsWithoutInnerClosingParentheses) {
    EXPECT_EQ(read(parseMatrixList, "List(Matrix(Vector(1,2,3,Vector(4,5,6,Vector(7,8,9)))"),
              (Floats{true, {1, 2, 3, 4, 5, 6, 7, 8, 9}}));
}

TEST(ParseTransformList, ReadsElementsWithoutInnerClosingParentheses) {
    EXPECT_EQ(read(parseTransformList,
                   "List(Transform(Matrix(Vector(1,2,3,Vector(4,5,6,Vector(7,8,9,Vector(0,1,2)))"),
              (Floats{true, {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 1, 2}}));
}

TEST(ParseTransformList, RefusesWhatIsNoList) {
    EXPECT_EQ(read(parseTransformList, "TransformList(Transform(1))"), (Floats{false, {}}));
}

}  // namespace
}  // namespace metagen

#include "comparison.h"

#include <gtest/gtest.h>

#include <limits>

namespace example {
namespace {

using Lines = std::vector<std::string>;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr std::uint32_t threeFloats = 273;
constexpr std::uint32_t floatList = 521;
constexpr std::uint32_t integerList = 522;
constexpr std::uint32_t stringList = 524;

/// A table of one parameter with the default.
Meta metaWith(DefaultValue value) {
    Meta meta(1);
    meta.add("A", "light").add("a", {"float", 0, std::move(value)});
    return meta;
}

Lines compareDefaults(DefaultValue compiled, DefaultValue loaded) {
    return differences(metaWith(std::move(compiled)), metaWith(std::move(loaded)));
}

void expectSame(DefaultValue compiled, DefaultValue loaded) {
    EXPECT_EQ(compareDefaults(std::move(compiled), std::move(loaded)), Lines());
}

void expectDifferent(DefaultValue compiled, DefaultValue loaded) {
    EXPECT_EQ(compareDefaults(std::move(compiled), std::move(loaded)).size(), 1U);
}

TEST(DefaultComparison, EqualValuesAreTheSame) {
    expectSame(7, 7);
    expectSame(0.5F, 0.5F);
    expectSame("text", "text");
    expectSame(TypeOnly{stringList}, TypeOnly{stringList});
    expectSame(NumberArray<std::int32_t>{integerList, {1, 2}},
               NumberArray<std::int32_t>{integerList, {1, 2}});
    expectSame(NumberArray<float>{threeFloats, {1, 2, 3}},
               NumberArray<float>{threeFloats, {1, 2, 3}});
}

TEST(DefaultComparison, OtherValuesAreDifferent) {
    expectDifferent(7, 8);
    expectDifferent(0.5F, 0.51F);
    expectDifferent("text", "texts");
    expectDifferent(TypeOnly{stringList}, TypeOnly{floatList});
    expectDifferent(NumberArray<std::int32_t>{integerList, {1, 2}},
                    NumberArray<std::int32_t>{integerList, {1, 3}});
    expectDifferent(NumberArray<float>{threeFloats, {1, 2, 3}},
                    NumberArray<float>{threeFloats, {1, 2}});
    expectDifferent(NumberArray<float>{threeFloats, {1, 2, 3}},
                    NumberArray<float>{floatList, {1, 2, 3}});
}

TEST(DefaultComparison, OtherKindsAreDifferent) {
    expectDifferent(1, 1.0F);
    expectDifferent(1.0F, 1);
    expectDifferent("", 0);
    expectDifferent(TypeOnly{floatList}, NumberArray<float>{floatList, {}});
    expectDifferent(NumberArray<float>{floatList, {}}, TypeOnly{floatList});
    expectDifferent(NumberArray<float>{floatList, {1}}, NumberArray<std::int32_t>{floatList, {1}});
}

TEST(DefaultComparison, FloatsAreComparedToSixDigits) {
    expectSame(0.123457F, 0.12345678F);
    expectDifferent(0.123457F, 0.123458F);
    expectSame(NumberArray<float>{floatList, {1e6F}}, NumberArray<float>{floatList, {1000000.1F}});
}

TEST(DefaultComparison, NansAreTheSameAndZerosAreTheSame) {
    expectSame(nan, nan);
    expectSame(0.0F, -0.0F);
    expectDifferent(nan, 0.0F);
}

TEST(DefaultComparison, IntegersOfArraysAreComparedAsFloats) {
    expectSame(NumberArray<std::int32_t>{integerList, {16777216}},
               NumberArray<std::int32_t>{integerList, {16777217}});
    expectDifferent(16777216, 16777217);
}

TEST(DefaultComparison, AnUnreadableDefaultIsAnEmptyTextInTheSource) {
    expectSame("", NumberArray<float>{threeFloats, {}});
    expectDifferent("x", NumberArray<float>{threeFloats, {}});
    expectDifferent("", NumberArray<float>{threeFloats, {1, 2, 3}});
    expectDifferent("", NumberArray<float>{floatList, {}});
}

TEST(DefaultComparison, ATextGoesOnBehindANul) {
    expectDifferent("before", std::string("before\0after", 12));
    expectSame(std::string("before\0after", 12), std::string("before\0after", 12));
    expectDifferent(std::string("before\0else", 11), std::string("before\0after", 12));
}

TEST(Comparison, TellsWhereWhatDiffers) {
    EXPECT_EQ(compareDefaults(0.5F, 2), Lines{"A.a: default is 0.5 in the source, 2 in the table"});
}

TEST(Comparison, TypesAndFlags) {
    Meta loaded(1);
    loaded.add("A", "light").add("a", {"integer", 3, 0.5F});
    EXPECT_EQ(differences(metaWith(0.5F), loaded),
              (Lines{"A.a: type is float in the source, integer in the table",
                     "A.a: flags is 0 in the source, 3 in the table"}));
}

TEST(Comparison, Categories) {
    Meta compiled(1);
    compiled.add("A", "light");
    compiled.add("B", "");
    compiled.add("C", "");
    Meta loaded(1);
    loaded.add("A", "material");
    loaded.add("B", "\"\"");
    loaded.add("C", "");
    EXPECT_EQ(differences(compiled, loaded),
              Lines{"A: category is light in the source, material in the table"});
}

TEST(Comparison, PluginsAndParametersThatOnlyOneSideHas) {
    Meta compiled(1);
    compiled.add("A", "").add("a", {"float", 0, 1.0F});
    compiled.add("B", "");
    Meta loaded(1);
    loaded.add("A", "").add("b", {"float", 0, 1.0F});
    loaded.add("C", "");
    EXPECT_EQ(differences(compiled, loaded),
              (Lines{"A.a is only in the source", "A.b is only in the table",
                     "B is only in the source", "C is only in the table"}));
}

TEST(Comparison, Versions) {
    EXPECT_EQ(differences(Meta(2.9), Meta(2)), Lines());
    EXPECT_EQ(differences(Meta(-2.9), Meta(-2)), Lines());
    EXPECT_EQ(differences(Meta(1.23457e6), Meta(1234567)), Lines());
    EXPECT_EQ(differences(Meta(1e20), Meta(-2147483648.0)), Lines());
    EXPECT_EQ(differences(Meta(1e20), Meta(2147483647)).size(), 1U);
    EXPECT_EQ(differences(Meta(3), Meta(-2147483648.0)).size(), 1U);
    EXPECT_EQ(differences(Meta(3), Meta(4)).size(), 1U);
    EXPECT_EQ(differences(HandlerMeta(3), HandlerMeta(4)).size(), 1U);
}

TEST(Comparison, FileParameters) {
    Meta compiled(1);
    compiled.fileParams = {{"A", {"a", "b"}}};
    Meta loaded(1);
    loaded.fileParams = {{"A", {"a"}}};
    loaded.inputFileParams = {{"A", {"a"}}};
    EXPECT_EQ(differences(compiled, loaded),
              (Lines{"files: A is a, b in the source, a in the table",
                     "input files: A is only in the table"}));
}

Meta metaScaling(Scaling scaling) {
    Meta meta(1);
    meta.scalingParams = {{"A", {{"a", std::move(scaling)}}}};
    return meta;
}

TEST(Comparison, Scaling) {
    using Operation = Scaling::Operation;
    const Scaling base = {Scaling::UnitType::Scene, 2, true, {{"b", Operation::Equals, 0.123457F}}};
    Scaling sixDigits = base;
    sixDigits.conditions[0].value = 0.12345678F;
    EXPECT_EQ(differences(metaScaling(base), metaScaling(sixDigits)), Lines());

    Scaling otherPower = base;
    otherPower.power = 1;
    EXPECT_EQ(
        differences(metaScaling(base), metaScaling(otherPower)),
        Lines{"scaling: A.a: scaling is with the scene, inverse, to the power of 2, where b is "
              "0.123457 in the source, with the scene, inverse, where b is 0.123457 in the "
              "table"});

    std::vector<Scaling> others(6, base);
    others[0].unit = static_cast<Scaling::UnitType>(2);
    others[1].inverse = false;
    others[2].conditions.clear();
    others[3].conditions[0].value = 1;
    others[4].conditions[0].parameter = "c";
    others[5].conditions[0].operation = static_cast<Operation>(2);
    for (const Scaling& other : others) {
        EXPECT_EQ(differences(metaScaling(base), metaScaling(other)).size(), 1U);
    }
}

TEST(Comparison, Handlers) {
    HandlerMeta compiled(1);
    compiled.add("A").add("a", HandlerTypes::Float).add("b", HandlerTypes::Color, 1, 0.5F, 0);
    HandlerMeta loaded(1);
    loaded.add("A").add("a", HandlerTypes::Float, 2).add("b", HandlerTypes::Color, 1, 0.5F, 0);
    EXPECT_EQ(differences(compiled, loaded),
              Lines{"handlers: A.a is float (1) in the source, float (2) in the table"});
    loaded.add("A").add("a", HandlerTypes::Duplicate).add("c", HandlerTypes::Float);
    loaded.add("B");
    EXPECT_EQ(differences(compiled, loaded),
              (Lines{"handlers: A.a is float (1) in the source, duplicate in the table",
                     "handlers: A.c is only in the table", "handlers: B is only in the table"}));
}

}  // namespace
}  // namespace example

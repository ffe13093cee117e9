#include "metadata/default_value_text.h"

#include <gtest/gtest.h>

#include "sdk/fake_sdk.h"

namespace metagen {
namespace {

using testing::FakeSdk;

std::string text(std::int32_t tag, TaggedValue::Payload payload = {}) {
    return defaultValueText({.tag = tag, .payload = std::move(payload)});
}

PluginReference reference(FakeSdk& sdk, std::int64_t id, std::int32_t propertyIndex = 0) {
    return {.renderer = sdk.renderer(), .pluginId = id, .propertyIndex = propertyIndex};
}

constexpr Components identity = {1, 0, 0, 0, 1, 0, 0, 0, 1, 5, 6, 7};

TEST(DefaultValueText, OfTagsWithoutAPayload) {
    EXPECT_EQ(text(-1), "#BadValue");
    EXPECT_EQ(text(10000), "#Unspecified");
    for (const std::int32_t tag : {-2, 11, 13, 99, 102, 103, 106, 107, 111, 117, 10001}) {
        EXPECT_EQ(text(tag), "<?>") << tag;
    }
}

TEST(DefaultValueText, OfNumbers) {
    EXPECT_EQ(text(0, -2147483647 - 1), "-2147483648");
    EXPECT_EQ(text(1, 0.1F), "0.1");
    EXPECT_EQ(text(1, 123456789.0F), "1.23457e+08");
    EXPECT_EQ(text(1, 1e-7F), "1e-07");
    EXPECT_EQ(text(2, 0.123456789), "0.123457");
    EXPECT_EQ(text(2, 1e300), "1e+300");
}

TEST(DefaultValueText, OfBooleans) {
    EXPECT_EQ(text(3, true), "1");
    EXPECT_EQ(text(3, false), "0");
}

TEST(DefaultValueText, OfVectorsAndColors) {
    EXPECT_EQ(text(4, Components{1, -2, 0.5F}), "Vector(1, -2, 0.5)");
    EXPECT_EQ(text(5, Components{1, 0.5F, 0}), "Color(1, 0.5, 0)");
    EXPECT_EQ(text(6, Components{0, 0.25F, 1, 0.5F}), "AColor(0, 0.25, 1, 0.5)");
}

TEST(DefaultValueText, OfMatricesAndTransforms) {
    EXPECT_EQ(text(7, identity), "Matrix(Vector(1, 0, 0), Vector(0, 1, 0), Vector(0, 0, 1))");
    EXPECT_EQ(text(8, identity),
              "Transform(Matrix(Vector(1, 0, 0), Vector(0, 1, 0), Vector(0, 0, 1)), "
              "Vector(5, 6, 7))");
}

TEST(DefaultValueText, OfTextsAsTheyAre) {
    EXPECT_EQ(text(9, std::string("a \"b\"\n\\")), "a \"b\"\n\\");
    EXPECT_EQ(text(9, std::string()), "");
}

TEST(DefaultValueText, OfNumberLists) {
    EXPECT_EQ(text(100, std::vector<std::int32_t>{1, -2}), "IntList(1, -2)");
    EXPECT_EQ(text(101, std::vector<float>{0.5F, 1}), "FloatList(0.5, 1)");
}

TEST(DefaultValueText, OfCompoundLists) {
    EXPECT_EQ(text(104, std::vector{Components{1, 2, 3}, Components{4, 5, 6}}),
              "VectorList(Vector(1, 2, 3), Vector(4, 5, 6))");
    EXPECT_EQ(text(105, std::vector{Components{1, 1, 1}}), "ColorList(Color(1, 1, 1))");
    EXPECT_EQ(text(108, std::vector{identity}),
              "TransformList(Transform(Matrix(Vector(1, 0, 0), Vector(0, 1, 0), "
              "Vector(0, 0, 1)), Vector(5, 6, 7)))");
}

TEST(DefaultValueText, OfTextLists) {
    EXPECT_EQ(text(109, std::vector<std::string>{"a", "", "b, c"}), "StringList(a, , b, c)");
}

TEST(DefaultValueText, OfEmptyLists) {
    EXPECT_EQ(text(12, std::vector<TaggedValue>{}), "List()");
    EXPECT_EQ(text(100, std::vector<std::int32_t>{}), "IntList()");
    EXPECT_EQ(text(101, std::vector<float>{}), "FloatList()");
    EXPECT_EQ(text(104, std::vector<Components>{}), "VectorList()");
    EXPECT_EQ(text(105, std::vector<Components>{}), "ColorList()");
    EXPECT_EQ(text(108, std::vector<Components>{}), "TransformList()");
    EXPECT_EQ(text(109, std::vector<std::string>{}), "StringList()");
    EXPECT_EQ(text(110, std::vector<PluginReference>{}), "PluginList()");
}

TEST(DefaultValueText, OfAGenericListByTheRulesOfItsElements) {
    const TaggedValue inner = {.tag = 12,
                               .payload = std::vector<TaggedValue>{{.tag = 3, .payload = true}}};
    EXPECT_EQ(text(12, std::vector<TaggedValue>{{.tag = 0, .payload = 3},
                                                {.tag = 9, .payload = std::string("a")},
                                                inner,
                                                {.tag = -1, .payload = {}}}),
              "List(3, a, List(1), #BadValue)");
}

TEST(PluginReferenceText, OfReferencesThatNameNothing) {
    FakeSdk sdk;
    sdk.plugins[7] = {.name = "gone", .exists = false};
    EXPECT_EQ(text(10, PluginReference{.pluginId = 5}), "#InvalidPlugin");
    EXPECT_EQ(text(10, reference(sdk, 0)), "#InvalidPlugin");
    EXPECT_EQ(text(10, reference(sdk, -1)), "#InvalidPlugin");
    EXPECT_EQ(text(10, reference(sdk, 0x7FFF'0000'0000'0000)), "#InvalidPlugin");
    EXPECT_EQ(text(10, reference(sdk, 0x0000'FFFF'FFFF'FFFF)), "#InvalidPlugin");
    EXPECT_EQ(text(10, reference(sdk, 7)), "#InvalidPlugin");
}

TEST(PluginReferenceText, OfAnIdOfEqualBitsNamesNothingWhateverTheSdkSays) {
    FakeSdk sdk;
    sdk.plugins[0] = {.name = "zeros"};
    sdk.plugins[-1] = {.name = "ones"};
    EXPECT_EQ(text(10, reference(sdk, 0)), "#InvalidPlugin");
    EXPECT_EQ(text(10, reference(sdk, 0x7FFF'0000'0000'0000)), "#InvalidPlugin");
    EXPECT_EQ(text(10, reference(sdk, -1)), "#InvalidPlugin");
    EXPECT_EQ(text(10, reference(sdk, 0x0000'FFFF'FFFF'FFFF)), "#InvalidPlugin");
}

TEST(PluginReferenceText, OfThePluginAloneOrWithItsProperty) {
    FakeSdk sdk;
    sdk.plugins[5] = {.name = "noise", .properties = {{0, "never"}, {1, "out_color"}}};
    EXPECT_EQ(text(10, reference(sdk, 5)), "noise");
    EXPECT_EQ(text(10, reference(sdk, 5, -1)), "noise");
    EXPECT_EQ(text(10, reference(sdk, 5, 1)), "noise::out_color");
    EXPECT_EQ(text(10, reference(sdk, 5, 2)), "noise");
    EXPECT_EQ(text(10, reference(sdk, 0x0003'0000'0000'0005, 1)), "noise::out_color");
}

TEST(PluginReferenceText, APluginWithoutANameHasAnEmptyOne) {
    FakeSdk sdk;
    sdk.plugins[-3] = {.name = std::nullopt, .properties = {{1, "out"}}};
    EXPECT_EQ(text(10, reference(sdk, -3)), "");
    EXPECT_EQ(text(10, reference(sdk, 0x0000'FFFF'FFFF'FFFD, 1)), "::out");
}

TEST(PluginReferenceText, ElementsOfAListAreNotAskedWhetherTheyExist) {
    FakeSdk sdk;
    sdk.plugins[5] = {.name = "gone", .exists = false};
    sdk.plugins[6] = {.name = "b", .properties = {{1, "never"}}};
    EXPECT_EQ(text(110, std::vector{reference(sdk, 5), reference(sdk, 0), reference(sdk, 6, 1),
                                    PluginReference{}}),
              "PluginList(gone, , b, )");
}

}  // namespace
}  // namespace metagen

#include "metadata/default_value_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "sdk/fake_sdk.h"

namespace metagen {
namespace {

using testing::FakeSdk;
using Vector = std::array<float, 3>;
using Floats12 = std::array<float, 12>;

std::string text(const QyraValue& value) {
    std::string out;
    appendDefaultValueText(out, value);
    return out;
}

QyraValue ofKind(std::int32_t kind) {
    QyraValue value = {};
    value.kind = kind;
    return value;
}

QyraValue integer(std::int32_t number) {
    QyraValue value = ofKind(0);
    value.integer = number;
    return value;
}

QyraValue single(float number) {
    QyraValue value = ofKind(1);
    value.single = number;
    return value;
}

QyraValue real(double number) {
    QyraValue value = ofKind(2);
    value.real = number;
    return value;
}

QyraValue boolean(std::uint8_t byte) {
    QyraValue value = ofKind(3);
    value.boolean = byte;
    return value;
}

QyraValue compound(std::int32_t kind, const Floats12& components) {
    QyraValue value = ofKind(kind);
    std::ranges::copy(components, value.components);
    return value;
}

std::string text(const QyraPluginReference& reference) {
    QyraValue value = ofKind(10);
    value.reference = reference;
    return text(value);
}

/// A list that borrows its elements.
template <typename Element>
QyraValue list(std::int32_t kind, std::vector<Element>& elements) {
    QyraValue value = ofKind(kind);
    value.count = static_cast<std::uint32_t>(elements.size());
    value.elements = elements.data();
    return value;
}

template <typename Element>
std::string listText(std::int32_t kind, std::vector<Element> elements) {
    return text(list(kind, elements));
}

std::string textOfText(std::string content) {
    QyraValue value = ofKind(9);
    value.text = content.data();
    return text(value);
}

QyraPluginReference reference(FakeSdk& sdk, std::int64_t id, std::int32_t propertyIndex = 0) {
    return {.renderer = sdk.renderer(), .pluginId = id, .propertyIndex = propertyIndex};
}

constexpr Floats12 identity = {1, 0, 0, 0, 1, 0, 0, 0, 1, 5, 6, 7};
constexpr Floats12 twelve = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};

TEST(DefaultValueText, OfKindsThatHoldNothing) {
    EXPECT_EQ(text(ofKind(-1)), "#BadValue");
    EXPECT_EQ(text(ofKind(10000)), "#Unspecified");
    for (const std::int32_t kind : {-2, 11, 13, 77, 99, 102, 103, 106, 107, 111, 117, 10001}) {
        EXPECT_EQ(text(ofKind(kind)), "<?>") << kind;
    }
}

TEST(DefaultValueText, OfNumbers) {
    EXPECT_EQ(text(integer(-7)), "-7");
    EXPECT_EQ(text(integer(-2147483647 - 1)), "-2147483648");
    EXPECT_EQ(text(single(0.1F)), "0.1");
    EXPECT_EQ(text(single(0.5F)), "0.5");
    EXPECT_EQ(text(single(123456789.0F)), "1.23457e+08");
    EXPECT_EQ(text(single(1e-7F)), "1e-07");
    EXPECT_EQ(text(real(0.123456789)), "0.123457");
    EXPECT_EQ(text(real(1e100)), "1e+100");
    EXPECT_EQ(text(real(1e300)), "1e+300");
}

TEST(DefaultValueText, OfBooleans) {
    EXPECT_EQ(text(boolean(1)), "1");
    EXPECT_EQ(text(boolean(2)), "1");
    EXPECT_EQ(text(boolean(0)), "0");
}

TEST(DefaultValueText, OfVectorsAndColors) {
    EXPECT_EQ(text(compound(4, {1, -2, 0.5F})), "Vector(1, -2, 0.5)");
    EXPECT_EQ(text(compound(5, {1, 0.5F, 0})), "Color(1, 0.5, 0)");
    EXPECT_EQ(text(compound(6, {0, 0.25F, 1, 0.5F})), "AColor(0, 0.25, 1, 0.5)");
}

TEST(DefaultValueText, OfCompoundsWithTheFloatsOfTheirKindOnly) {
    EXPECT_EQ(text(compound(4, twelve)), "Vector(1, 2, 3)");
    EXPECT_EQ(text(compound(5, twelve)), "Color(1, 2, 3)");
    EXPECT_EQ(text(compound(6, twelve)), "AColor(1, 2, 3, 4)");
    EXPECT_EQ(text(compound(7, twelve)),
              "Matrix(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9))");
    EXPECT_EQ(text(compound(8, twelve)),
              "Transform(Matrix(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9)), "
              "Vector(10, 11, 12))");
}

TEST(DefaultValueText, OfTextsAsTheyAre) {
    EXPECT_EQ(textOfText("a \"b\"\n\\"), "a \"b\"\n\\");
    EXPECT_EQ(textOfText(""), "");
}

TEST(DefaultValueText, OfANullTextIsEmpty) {
    QyraValue value = ofKind(9);
    value.text = nullptr;
    EXPECT_EQ(text(value), "");
}

TEST(DefaultValueText, OfNumberLists) {
    EXPECT_EQ(listText<std::int32_t>(100, {1, -2}), "IntList(1, -2)");
    EXPECT_EQ(listText<float>(101, {0.5F, 1, 2}), "FloatList(0.5, 1, 2)");
}

TEST(DefaultValueText, OfCompoundLists) {
    EXPECT_EQ(listText<Vector>(104, {{1, 2, 3}, {4, 5, 6}}),
              "VectorList(Vector(1, 2, 3), Vector(4, 5, 6))");
    EXPECT_EQ(listText<Vector>(105, {{1, 2, 3}, {4, 5, 6}}),
              "ColorList(Color(1, 2, 3), Color(4, 5, 6))");
    EXPECT_EQ(listText<Floats12>(108, {identity, twelve}),
              "TransformList(Transform(Matrix(Vector(1, 0, 0), Vector(0, 1, 0), "
              "Vector(0, 0, 1)), Vector(5, 6, 7)), Transform(Matrix(Vector(1, 2, 3), "
              "Vector(4, 5, 6), Vector(7, 8, 9)), Vector(10, 11, 12)))");
}

TEST(DefaultValueText, OfTextLists) {
    char a[] = "a";
    char empty[] = "";
    char comma[] = "b, c";
    EXPECT_EQ(listText<char*>(109, {a, empty, comma}), "StringList(a, , b, c)");
    EXPECT_EQ(listText<char*>(109, {a, nullptr}), "StringList(a, )");
}

TEST(DefaultValueText, OfListsWithoutElementsOrWithoutAnArray) {
    const std::pair<std::int32_t, const char*> lists[] = {
        {12, "List()"},        {100, "IntList()"},   {101, "FloatList()"},
        {104, "VectorList()"}, {105, "ColorList()"}, {108, "TransformList()"},
        {109, "StringList()"}, {110, "PluginList()"}};
    for (const auto& [kind, expected] : lists) {
        QyraValue value = ofKind(kind);
        value.elements = &value;
        EXPECT_EQ(text(value), expected);
        value.count = 3;
        value.elements = nullptr;
        EXPECT_EQ(text(value), expected);
    }
}

TEST(DefaultValueText, OfAGenericListByTheRulesOfItsElements) {
    std::vector<QyraValue> booleans = {boolean(1)};
    std::vector<QyraValue> integers = {integer(3)};
    char a[] = "a";
    QyraValue text = ofKind(9);
    text.text = a;
    EXPECT_EQ(listText<QyraValue>(12, {integer(3), text, list(12, booleans), list(12, integers),
                                       ofKind(-1), ofKind(77)}),
              "List(3, a, List(1), List(3), #BadValue, <?>)");
}

TEST(PluginReferenceText, OfReferencesThatNameNothing) {
    FakeSdk sdk;
    sdk.plugins[7] = {.name = "gone", .exists = false};
    EXPECT_EQ(text(QyraPluginReference{nullptr, 5, 0}), "#InvalidPlugin");
    EXPECT_EQ(text(reference(sdk, 0)), "#InvalidPlugin");
    EXPECT_EQ(text(reference(sdk, -1)), "#InvalidPlugin");
    EXPECT_EQ(text(reference(sdk, 0x7FFF'0000'0000'0000)), "#InvalidPlugin");
    EXPECT_EQ(text(reference(sdk, 0x0000'FFFF'FFFF'FFFF)), "#InvalidPlugin");
    EXPECT_EQ(text(reference(sdk, 7)), "#InvalidPlugin");
}

TEST(PluginReferenceText, OfAnIdOfEqualBitsNamesNothingWhateverTheSdkSays) {
    FakeSdk sdk;
    sdk.plugins[0] = {.name = "zeros"};
    sdk.plugins[-1] = {.name = "ones"};
    EXPECT_EQ(text(reference(sdk, 0)), "#InvalidPlugin");
    EXPECT_EQ(text(reference(sdk, 0x7FFF'0000'0000'0000)), "#InvalidPlugin");
    EXPECT_EQ(text(reference(sdk, -1)), "#InvalidPlugin");
    EXPECT_EQ(text(reference(sdk, 0x0000'FFFF'FFFF'FFFF)), "#InvalidPlugin");
}

TEST(PluginReferenceText, OfThePluginAloneOrWithItsProperty) {
    FakeSdk sdk;
    sdk.plugins[5] = {.name = "noise", .properties = {{0, "never"}, {1, "out_color"}}};
    EXPECT_EQ(text(reference(sdk, 5)), "noise");
    EXPECT_EQ(text(reference(sdk, 5, -1)), "noise");
    EXPECT_EQ(text(reference(sdk, 5, 1)), "noise::out_color");
    EXPECT_EQ(text(reference(sdk, 5, 2)), "noise");
    EXPECT_EQ(text(reference(sdk, 0x0003'0000'0000'0005, 1)), "noise::out_color");
}

TEST(PluginReferenceText, APluginWithoutANameHasAnEmptyOne) {
    FakeSdk sdk;
    sdk.plugins[-3] = {.name = std::nullopt, .properties = {{1, "out"}}};
    EXPECT_EQ(text(reference(sdk, -3)), "");
    EXPECT_EQ(text(reference(sdk, 0x0000'FFFF'FFFF'FFFD, 1)), "::out");
}

TEST(PluginReferenceText, ElementsOfAListAreNotAskedWhetherTheyExist) {
    FakeSdk sdk;
    sdk.plugins[5] = {.name = "gone", .exists = false};
    sdk.plugins[6] = {.name = "b", .properties = {{1, "never"}}};
    EXPECT_EQ(listText<QyraPluginReference>(
                  110, {reference(sdk, 5), reference(sdk, 0), reference(sdk, 6, 1), {}}),
              "PluginList(gone, , b, )");
}

TEST(PluginReferenceText, OfAnElementWithoutARenderer) {
    FakeSdk sdk;
    sdk.plugins[5] = {.name = "noise"};
    EXPECT_EQ(listText<QyraPluginReference>(110, {reference(sdk, 5), {nullptr, 5, 0}}),
              "PluginList(noise, )");
}

}  // namespace
}  // namespace metagen

#include "metadata/default_value_query.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "metadata/default_value_text.h"
#include "sdk/fake_sdk.h"

namespace metagen {
namespace {

using testing::FakeParameter;
using testing::FakeSdk;

using Floats = std::vector<float>;

/// The tag and the text of the value that a guide describes, or the error's text.
std::string guided(std::int32_t code, float single, const Floats& sequence) try {
    const TaggedValue value = valueOfGuide(code, single, sequence);
    return std::to_string(value.tag) + " " + defaultValueText(value);
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

/// The text of the parameter's default value as the SDK of test data gives it.
std::string queried(FakeParameter parameter) {
    const FakeSdk sdk;
    return defaultValueText(queryDefaultValue(&parameter, parameter.code));
}

TEST(QueryDefaultValue, AGuideWinsOverTheSdksValue) {
    FakeParameter parameter = {.name = "p", .code = 5};
    parameter.defaultValue = [](FakeSdk&, QyraValue&) { FAIL() << "asked beside the guide"; };
    parameter.guide = {.single = 0, .sequence = {1, 0.5F, 0}};
    EXPECT_EQ(queried(parameter), "Color(1, 0.5, 0)");
}

TEST(QueryDefaultValue, AGuidesFloatsAreFreedWhenTheyAreWrong) {
    const FakeSdk sdk;
    FakeParameter parameter = {.name = "p", .code = 9};
    parameter.guide = {.single = 0, .sequence = {1, 2}};
    EXPECT_THROW(queryDefaultValue(&parameter, parameter.code), std::invalid_argument);
}

TEST(QueryDefaultValue, TakesTheSdksValueAndFreesWhatHangsBelowIt) {
    EXPECT_EQ(queried({.name = "p",
                       .code = 9,
                       .defaultValue =
                           [](FakeSdk& sdk, QyraValue& value) {
                               value.kind = 9;
                               value.text = sdk.allocateText("a text");
                           }}),
              "a text");
}

TEST(QueryDefaultValue, WithoutADefaultItIsUnspecified) {
    EXPECT_EQ(queried({.name = "p"}), "#Unspecified");
}

QyraValue single(std::int32_t kind) {
    QyraValue value = {};
    value.kind = kind;
    return value;
}

TEST(ValueOfSdk, Numbers) {
    QyraValue value = single(0);
    value.integer = -7;
    EXPECT_EQ(defaultValueText(valueOfSdk(value)), "-7");
    value = single(1);
    value.single = 0.5F;
    EXPECT_EQ(defaultValueText(valueOfSdk(value)), "0.5");
    value = single(2);
    value.real = 1e100;
    EXPECT_EQ(defaultValueText(valueOfSdk(value)), "1e+100");
    value = single(3);
    value.boolean = 2;
    EXPECT_EQ(defaultValueText(valueOfSdk(value)), "1");
}

TEST(ValueOfSdk, CompoundsTakeTheFloatsOfTheirKindOnly) {
    QyraValue value = {};
    std::copy(twelve.begin(), twelve.end(), value.components);
    const auto textOfKind = [&](std::int32_t kind) {
        value.kind = kind;
        return defaultValueText(valueOfSdk(value));
    };
    EXPECT_EQ(textOfKind(4), "Vector(1, 2, 3)");
    EXPECT_EQ(textOfKind(5), "Color(1, 2, 3)");
    EXPECT_EQ(textOfKind(6), "AColor(1, 2, 3, 4)");
    EXPECT_EQ(textOfKind(7), "Matrix(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9))");
    EXPECT_EQ(textOfKind(8),
              "Transform(Matrix(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9)), "
              "Vector(10, 11, 12))");
}

TEST(ValueOfSdk, ANullTextIsEmpty) {
    QyraValue value = single(9);
    value.text = nullptr;
    EXPECT_EQ(defaultValueText(valueOfSdk(value)), "");
}

std::string listText(std::int32_t kind, std::uint32_t count, void* elements) {
    QyraValue value = single(kind);
    value.count = count;
    value.elements = elements;
    return defaultValueText(valueOfSdk(value));
}

TEST(ValueOfSdk, Lists) {
    std::vector<std::int32_t> integers = {1, 2};
    Floats floats = {0.5F, 1, 2};
    Floats six = {1, 2, 3, 4, 5, 6};
    Floats transform = twelve;
    char a[] = "a";
    std::vector<char*> texts = {a, nullptr};
    EXPECT_EQ(listText(100, 2, integers.data()), "IntList(1, 2)");
    EXPECT_EQ(listText(101, 3, floats.data()), "FloatList(0.5, 1, 2)");
    EXPECT_EQ(listText(104, 2, six.data()), "VectorList(Vector(1, 2, 3), Vector(4, 5, 6))");
    EXPECT_EQ(listText(105, 2, six.data()), "ColorList(Color(1, 2, 3), Color(4, 5, 6))");
    EXPECT_EQ(listText(108, 1, transform.data()),
              "TransformList(Transform(Matrix(Vector(1, 2, 3), Vector(4, 5, 6), "
              "Vector(7, 8, 9)), Vector(10, 11, 12)))");
    EXPECT_EQ(listText(109, 2, texts.data()), "StringList(a, )");
}

TEST(ValueOfSdk, PluginListsAndReferences) {
    FakeSdk sdk;
    sdk.plugins[5] = {.name = "noise", .properties = {{2, "out"}}};
    std::vector<QyraPluginReference> references = {{sdk.renderer(), 5, 0}, {nullptr, 5, 0}};
    EXPECT_EQ(listText(110, 2, references.data()), "PluginList(noise, )");
    QyraValue value = single(10);
    value.reference = {sdk.renderer(), 5, 2};
    EXPECT_EQ(defaultValueText(valueOfSdk(value)), "noise::out");
}

TEST(ValueOfSdk, GenericListsNest) {
    QyraValue integer = single(0);
    integer.integer = 3;
    QyraValue inner = single(12);
    inner.count = 1;
    inner.elements = &integer;
    std::vector<QyraValue> values = {integer, inner, single(77)};
    EXPECT_EQ(listText(12, 3, values.data()), "List(3, List(3), <?>)");
}

TEST(ValueOfSdk, AListWithoutAnArrayIsEmpty) {
    for (const std::int32_t kind : {12, 100, 101, 104, 105, 108, 109, 110}) {
        QyraValue value = single(kind);
        value.count = 3;
        value.elements = nullptr;
        EXPECT_EQ(listSize(valueOfSdk(value)), 0U) << kind;
    }
}

TEST(ValueOfSdk, UnknownKindsKeepTheirTagAndHaveNoPayload) {
    EXPECT_EQ(defaultValueText(valueOfSdk(single(-1))), "#BadValue");
    EXPECT_EQ(defaultValueText(valueOfSdk(single(10000))), "#Unspecified");
    EXPECT_EQ(defaultValueText(valueOfSdk(single(106))), "<?>");
}

}  // namespace
}  // namespace metagen

#include "metadata/base_document.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "sdk/entry_point_table.h"
#include "sdk/fake_sdk.h"
#include "support/exit_status.h"

namespace metagen {
namespace {

using testing::FakeClass;
using testing::FakeGuide;
using testing::FakeParameter;
using testing::FakeSdk;
using Texts = std::vector<std::string>;

FakeParameter integer(const char* name, std::int32_t number, std::int32_t code = 0) {
    return {.name = name, .code = code, .defaultValue = [number](FakeSdk&, QyraValue& value) {
                value.kind = 0;
                value.integer = number;
            }};
}

FakeParameter text(const char* content) {
    return {.name = "p", .code = 9, .defaultValue = [content](FakeSdk& sdk, QyraValue& value) {
                value.kind = 9;
                value.text = sdk.allocateText(content);
            }};
}

/// A parameter whose default value is a list.
template <typename Element>
FakeParameter list(std::int32_t code, const std::vector<Element>& elements) {
    return {.name = "p",
            .code = code,
            .elements = 0,
            .defaultValue = [code, elements](FakeSdk& sdk, QyraValue& value) {
                value.kind = code;
                value.count = static_cast<std::uint32_t>(elements.size());
                value.elements = sdk.allocateArray(elements);
            }};
}

std::string objectOf(FakeSdk& sdk, FakeClass fakeClass) {
    const std::string name = fakeClass.name;
    sdk.classes = {std::move(fakeClass)};
    const Renderer renderer;
    PluginReader reader(renderer);
    const std::string object(reader.read(name));
    EXPECT_EQ(reader.namelessCode(), std::nullopt);
    return object;
}

std::string objectOf(FakeClass fakeClass) {
    FakeSdk sdk;
    return objectOf(sdk, std::move(fakeClass));
}

/// What the object of a class says of its only parameter.
std::string parameterObject(FakeParameter parameter) {
    const std::string text = objectOf({.name = "A", .parameters = {std::move(parameter)}});
    constexpr std::string_view before = R"({"type":null,"params":{"p":)";
    constexpr std::string_view after = "}}";
    EXPECT_TRUE(text.starts_with(before) && text.ends_with(after)) << text;
    return text.substr(before.size(), text.size() - before.size() - after.size());
}

TEST(PluginReader, MayHaveNoCategoryAndNoParameters) {
    EXPECT_EQ(objectOf({.name = "A"}), R"({"type":null,"params":{}})");
    EXPECT_EQ(objectOf({.name = "B", .hasNullNames = true}), R"({"type":null,"params":{}})");
}

TEST(PluginReader, HasItsParametersInTheCombinedOrderAndTheirNamesUnescaped) {
    EXPECT_EQ(objectOf({.name = "b",
                        .categoryBits = 1U << 4U,
                        .parameters = {integer("z\"", 1), integer("type", 2), integer("A_1", 3)}}),
              R"({"type":"light","params":{"type":{"type":"integer","defaultValue":"2"},)"
              R"("A_1":{"type":"integer","defaultValue":"3"},)"
              R"("z"":{"type":"integer","defaultValue":"1"}}})");
}

TEST(PluginReader, GoesByTheTypeText) {
    EXPECT_EQ(objectOf({.name = "A", .categoryBits = 1, .typeText = "TypeOfA"}),
              R"({"type":"bitmap","params":{}})");
}

TEST(PluginReader, KeepsTheFirstOfEqualParametersAndAsksNothingAboutOthers) {
    FakeSdk sdk;
    EXPECT_EQ(
        objectOf(sdk, {.name = "Mtl_A", .parameters = {integer("x_y", 1), integer("X.Y", 2)}}),
        R"({"type":null,"params":{"x_y":{"type":"integer","defaultValue":"1"}}})");
    EXPECT_EQ(std::ranges::count(sdk.calls, "definition X.Y"), 0);
}

TEST(PluginReader, SomeTypeCodesAreNotRecordedAndKeepNoName) {
    std::vector<FakeParameter> parameters;
    for (const std::int32_t code : {1000, 1001, 1002, 1003, 1004, 1005, 10000}) {
        parameters.push_back(integer("x", code, code));
    }
    parameters.push_back(integer("X", 5));
    FakeSdk sdk;
    EXPECT_EQ(objectOf(sdk, {.name = "A", .parameters = parameters}),
              R"({"type":null,"params":{"X":{"type":"integer","defaultValue":"5"}}})");
    EXPECT_EQ(std::ranges::count(sdk.calls, "gpuSupport x"), 7);
    EXPECT_EQ(std::ranges::count(sdk.calls, "default x"), 0);
}

TEST(PluginReader, TheTypeCodesAroundThemAreRecorded) {
    FakeSdk sdk;
    sdk.classes = {{.name = "A"}};
    for (const std::int32_t code : {-1, 0, 999, 1006, 9999, 10001}) {
        sdk.classes[0].parameters.push_back(integer(std::to_string(code).c_str(), code, code));
    }
    const Renderer renderer;
    PluginReader reader(renderer);
    static_cast<void>(reader.read("A"));
    EXPECT_TRUE(reader.namelessCode().has_value());
    Texts recorded;
    std::ranges::copy_if(sdk.calls, std::back_inserter(recorded),
                         [](const std::string& call) { return call.starts_with("default "); });
    EXPECT_EQ(recorded, (Texts{"default -1", "default 0", "default 999", "default 1006",
                               "default 9999", "default 10001"}));
}

TEST(PluginReader, AnEqualNameIsAskedAboutUntilOneIsRecorded) {
    FakeSdk sdk;
    EXPECT_EQ(objectOf(sdk, {.name = "A",
                             .parameters = {integer("a_b", 1, 1000), integer("A.b", 2),
                                            integer("a.B", 3), integer("a", 4)}}),
              R"({"type":null,"params":{"a":{"type":"integer","defaultValue":"4"},)"
              R"("A.b":{"type":"integer","defaultValue":"2"}}})");
    EXPECT_EQ(std::ranges::count(sdk.calls, "definition a.B"), 0);
}

TEST(PluginReader, LacksAParameterWithoutADefinition) {
    FakeSdk sdk;
    entryPoints().Qyra_QyraRenderer_getPropertyDefinitionFromClass =
        [](void*, const char*, const char*) -> const void* { return nullptr; };
    EXPECT_EQ(objectOf(sdk, {.name = "A", .parameters = {integer("p", 1)}}),
              R"({"type":null,"params":{}})");
    EXPECT_EQ(std::ranges::count(sdk.calls, "gpuSupport p"), 0);
}

TEST(PluginReader, GivesBackWhatItHoldsWhenTheSdkFails) {
    FakeParameter parameter = text("held");
    parameter.defaultValue = [fill = parameter.defaultValue](FakeSdk& sdk, QyraValue& value) {
        fill(sdk, value);
        throw Qyra::QyraException("failed");
    };
    EXPECT_THROW(parameterObject(parameter), Qyra::QyraException);
}

void readConflict(std::uint64_t categoryBits) {
    showOutputAtExit();
    objectOf({.name = "A", .categoryBits = categoryBits, .typeText = "TypeOfA"});
}

TEST(PluginReaderDeathTest, CategoriesThatCanNotBeReconciledEndWithOne) {
    EXPECT_EXIT(readConflict(1U << 2U | 1U << 6U), ::testing::ExitedWithCode(1),
                "^Plugin type: TypeOfA has multiple incompatible categories:\n"
                "\tnode\n\trender_channel\n$");
    EXPECT_EXIT(readConflict(1U << 17U | 1U << 18U), ::testing::ExitedWithCode(1),
                "^Plugin type: TypeOfA has multiple incompatible categories:\n$");
}

TEST(ParameterObject, WithoutADefaultIsUnspecified) {
    EXPECT_EQ(parameterObject({.name = "p"}),
              R"({"type":"integer","defaultValue":"#Unspecified"})");
}

TEST(ParameterObject, HasItsDefaultTextEscaped) {
    EXPECT_EQ(parameterObject(text("a text")), R"({"type":"string","defaultValue":"a text"})");
    EXPECT_EQ(parameterObject(text("a\"\n/")), R"({"type":"string","defaultValue":"a\"\n/"})");
}

TEST(ParameterObject, HasAnEmptyDefaultText) {
    EXPECT_EQ(parameterObject(text("")), R"({"type":"string","defaultValue":""})");
}

TEST(ParameterObject, TwoQuotesAndNoneAreNoDefault) {
    EXPECT_EQ(parameterObject(text("\"\"")), R"({"type":"string"})");
    EXPECT_EQ(parameterObject(text("none")), R"({"type":"string"})");
    EXPECT_EQ(parameterObject(text("None")), R"({"type":"string","defaultValue":"None"})");
    EXPECT_EQ(parameterObject(text("\"\" ")), R"({"type":"string","defaultValue":"\"\" "})");
}

TEST(ParameterObject, ADoubleIsNamedFloat) {
    EXPECT_EQ(parameterObject({.name = "p",
                               .code = 2,
                               .defaultValue =
                                   [](FakeSdk&, QyraValue& value) {
                                       value.kind = 2;
                                       value.real = 0.5;
                                   }}),
              R"({"type":"float","defaultValue":"0.5"})");
}

TEST(ParameterObject, AnElementCountMakesAList) {
    EXPECT_EQ(parameterObject(list<std::int32_t>(100, {1, 2})),
              R"json({"type":"list","listType":"integer","defaultValue":"IntList(1, 2)"})json");
}

TEST(ParameterObject, AnEmptyListHasNoDefault) {
    EXPECT_EQ(parameterObject(list<float>(101, {})), R"({"type":"list","listType":"float"})");
    EXPECT_EQ(parameterObject(list<QyraValue>(12, {})), R"({"type":"list","listType":"list"})");
}

TEST(ParameterObject, AListWithoutAListDefaultHasNone) {
    FakeParameter parameter = integer("p", 7, 1);
    parameter.elements = 0;
    EXPECT_EQ(parameterObject(parameter), R"({"type":"list","listType":"float"})");
    parameter.guide = FakeGuide{.single = 1, .sequence = {}};
    EXPECT_EQ(parameterObject(parameter), R"({"type":"list","listType":"float"})");
    EXPECT_EQ(parameterObject({.name = "p", .code = 12, .elements = 0}),
              R"({"type":"list","listType":"list"})");
}

TEST(ParameterObject, AListWithElementsHasADefaultWhateverItsText) {
    FakeParameter parameter = list<char*>(109, {});
    parameter.defaultValue = [](FakeSdk& sdk, QyraValue& value) {
        value.kind = 109;
        value.count = 1;
        value.elements = sdk.allocateArray<char*>({sdk.allocateText("\"")});
    };
    EXPECT_EQ(parameterObject(parameter),
              R"json({"type":"list","listType":"string","defaultValue":"StringList(\")"})json");
}

TEST(ParameterObject, ASingleParameterHasAListDefaultsText) {
    FakeParameter parameter = list<std::int32_t>(100, {});
    parameter.elements = 0xFFFFFFFFU;
    EXPECT_EQ(parameterObject(parameter),
              R"json({"type":"integer","defaultValue":"IntList()"})json");
}

TEST(ParameterObject, AGuideWinsOverTheSdksValue) {
    FakeParameter parameter = {.name = "p", .code = 5};
    parameter.defaultValue = [](FakeSdk&, QyraValue&) { FAIL() << "asked beside the guide"; };
    parameter.guide = {.single = 0, .sequence = {1, 0.5F, 0}};
    EXPECT_EQ(parameterObject(parameter),
              R"json({"type":"color","defaultValue":"Color(1, 0.5, 0)"})json");
}

TEST(ParameterObject, AGuideThatDoesNotFitThrowsAndLeaksNothing) {
    for (const std::vector<float>& sequence : {std::vector<float>{}, {1, 2}}) {
        FakeParameter parameter = {.name = "p", .code = 9};
        parameter.guide = {.single = 1, .sequence = sequence};
        EXPECT_THROW(parameterObject(parameter), std::invalid_argument);
    }
}

}  // namespace
}  // namespace metagen

#include "metadata/live_metadata.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "metadata/base_document.h"
#include "sdk/fake_sdk.h"

namespace metagen {
namespace {

using testing::FakeClass;
using testing::FakeParameter;
using testing::FakeSdk;

FakeParameter integer(const char* name, std::int32_t number) {
    return {.name = name, .defaultValue = [number](FakeSdk&, QyraValue& value) {
                value.kind = 0;
                value.integer = number;
            }};
}

/// The base document of the classes.
std::string documentOf(FakeSdk& sdk, std::vector<FakeClass> classes) {
    sdk.classes = std::move(classes);
    const Renderer renderer;
    return readBaseDocument(renderer).text();
}

std::string documentOf(std::vector<FakeClass> classes) {
    FakeSdk sdk;
    return documentOf(sdk, std::move(classes));
}

TEST(LiveMetadata, WithoutClassesTheDocumentIsEmpty) {
    EXPECT_EQ(documentOf({}), R"({"plugins":{}})");
    FakeSdk sdk;
    sdk.hasNullClassNames = true;
    EXPECT_EQ(documentOf(sdk, {{.name = "A"}}), R"({"plugins":{}})");
}

TEST(LiveMetadata, AClassMayHaveNoCategoryAndNoParameters) {
    EXPECT_EQ(documentOf({{.name = "A"}, {.name = "B", .hasNullNames = true}}),
              R"({"plugins":{"A":{"type":null,"params":{}},"B":{"type":null,"params":{}}}})");
}

TEST(LiveMetadata, ClassesAndParametersStandInTheCombinedOrder) {
    EXPECT_EQ(documentOf({{.name = "b",
                           .categoryBits = 1U << 4U,
                           .parameters = {integer("z", 1), integer("type", 2), integer("A_1", 3)}},
                          {.name = "A", .categoryBits = 1}}),
              R"({"plugins":{"A":{"type":"bitmap","params":{}},"b":{"type":"light","params":{)"
              R"("type":{"type":"integer","defaultValue":"2"},)"
              R"("A_1":{"type":"integer","defaultValue":"3"},)"
              R"("z":{"type":"integer","defaultValue":"1"}}}}})");
}

TEST(LiveMetadata, TheFirstOfEqualClassesAndParametersStays) {
    FakeSdk sdk;
    EXPECT_EQ(
        documentOf(sdk, {{.name = "Mtl_A", .parameters = {integer("x_y", 1), integer("X.Y", 2)}},
                         {.name = "mtl.a", .parameters = {integer("other", 3)}}}),
        R"({"plugins":{"Mtl_A":{"type":null,"params":{)"
        R"("x_y":{"type":"integer","defaultValue":"1"}}}}})");
    // An equal parameter is dropped before any query, an equal class only when it is built.
    EXPECT_EQ(std::ranges::count(sdk.calls, "definition X.Y"), 0);
    EXPECT_EQ(std::ranges::count(sdk.calls, "default other"), 1);
}

TEST(LiveMetadata, SomeTypeCodesAreNotRecordedAndKeepNoName) {
    std::vector<FakeParameter> parameters;
    for (const std::int32_t code : {1000, 1001, 1002, 1003, 1004, 1005, 10000}) {
        FakeParameter parameter = integer("x", code);
        parameter.code = code;
        parameters.push_back(parameter);
    }
    parameters.push_back(integer("X", 5));
    FakeSdk sdk;
    EXPECT_EQ(documentOf(sdk, {{.name = "A", .parameters = parameters}}),
              R"({"plugins":{"A":{"type":null,"params":{)"
              R"("X":{"type":"integer","defaultValue":"5"}}}}})");
    EXPECT_EQ(std::ranges::count(sdk.calls, "gpuSupport x"), 7);
    EXPECT_EQ(std::ranges::count(sdk.calls, "default x"), 0);
}

TEST(LiveMetadata, TheTypeCodesAroundThemAreRecorded) {
    std::vector<FakeParameter> parameters;
    for (const std::int32_t code : {-1, 0, 999, 1006, 9999, 10001}) {
        parameters.push_back(integer("x", code));
        parameters.back().name = std::to_string(code);
        parameters.back().code = code;
    }
    FakeSdk sdk;
    sdk.classes = {{.name = "A", .parameters = parameters}};
    std::vector<std::string> recorded;
    visitPlugins(Renderer(),
                 [&recorded](const std::string& /*className*/, const PluginRecord& plugin) {
                     for (const NamedParameter& parameter : plugin.parameters) {
                         recorded.push_back(parameter.name);
                         EXPECT_EQ(std::to_string(parameter.record.code), parameter.name);
                     }
                 });
    EXPECT_EQ(recorded, (std::vector<std::string>{"-1", "0", "10001", "1006", "999", "9999"}));
}

TEST(LiveMetadata, AnEqualNameIsAskedAboutUntilOneIsRecorded) {
    FakeParameter unrecorded = integer("a_b", 1);
    unrecorded.code = 1000;
    FakeSdk sdk;
    EXPECT_EQ(documentOf(sdk, {{.name = "A",
                                .parameters = {unrecorded, integer("A.b", 2), integer("a.B", 3),
                                               integer("a", 4)}}}),
              R"({"plugins":{"A":{"type":null,"params":{)"
              R"("a":{"type":"integer","defaultValue":"4"},)"
              R"("A.b":{"type":"integer","defaultValue":"2"}}}}})");
    EXPECT_EQ(std::ranges::count(sdk.calls, "definition a.B"), 0);
}

TEST(LiveMetadata, QueriesGoByTheTypeText) {
    EXPECT_EQ(documentOf({{.name = "A", .categoryBits = 1, .typeText = "TypeOfA"}}),
              R"({"plugins":{"A":{"type":"bitmap","params":{}}}})");
}

TEST(LiveMetadata, AnElementCountMakesAList) {
    FakeParameter list = {.name = "l", .code = 100, .elements = 0};
    list.defaultValue = [](FakeSdk& sdk, QyraValue& value) {
        value.kind = 100;
        value.count = 2;
        value.elements = sdk.allocateArray<std::int32_t>({1, 2});
    };
    EXPECT_EQ(documentOf({{.name = "A", .parameters = {list}}}),
              R"({"plugins":{"A":{"type":null,"params":{"l":{"type":"list",)"
              R"json("listType":"integer","defaultValue":"IntList(1, 2)"}}}}})json");
}

TEST(LiveMetadata, AGuideThatDoesNotFitThrowsAndLeaksNothing) {
    FakeParameter guided = {.name = "g", .code = 9};
    guided.guide = {.single = 1, .sequence = {}};
    EXPECT_THROW(documentOf({{.name = "A", .parameters = {guided}}}), std::invalid_argument);
}

TEST(LiveMetadataDeathTest, CategoriesThatCanNotBeReconciledEndWithOne) {
    EXPECT_EXIT(documentOf({{.name = "A", .categoryBits = 1U << 2U | 1U << 6U}}),
                ::testing::ExitedWithCode(1), "");
}

}  // namespace
}  // namespace metagen

#include "metadata/base_document.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "sdk/fake_sdk.h"
#include "support/exit_status.h"
#include "support/text_file.h"

namespace metagen {
namespace {

using testing::FakeClass;
using testing::FakeParameter;
using testing::FakeSdk;

FakeParameter boolean(const char* name) {
    return {.name = name, .code = 3, .defaultValue = [](FakeSdk&, QyraValue& value) {
                value.kind = 3;
                value.boolean = 1;
            }};
}

/// A parameter whose type has no name.
const FakeParameter nameless = {.name = "p", .code = 50};

std::string documentOf(FakeSdk& sdk, std::vector<FakeClass> classes) {
    sdk.classes = std::move(classes);
    return BaseDocument(Renderer()).text();
}

std::string documentOf(std::vector<FakeClass> classes) {
    FakeSdk sdk;
    return documentOf(sdk, std::move(classes));
}

TEST(BaseDocument, OfNothing) {
    EXPECT_EQ(documentOf({}), R"({"plugins":{}})");
    FakeSdk sdk;
    sdk.hasNullClassNames = true;
    EXPECT_EQ(documentOf(sdk, {{.name = "A"}}), R"({"plugins":{}})");
}

TEST(BaseDocument, NamesStandUnescaped) {
    EXPECT_EQ(documentOf({{.name = "A\"\\", .parameters = {boolean("p\"")}}}),
              "{\"plugins\":{\"A\"\\\":{\"type\":null,\"params\":{\"p\"\":"
              "{\"type\":\"bool\",\"defaultValue\":\"1\"}}}}}");
}

TEST(BaseDocument, ClassesAreOrderedAndTheFirstOfEqualOnesStays) {
    FakeSdk sdk;
    EXPECT_EQ(documentOf(sdk, {{.name = "b"},
                               {.name = "A_c", .categoryBits = 1U << 4U},
                               {.name = "a.C", .parameters = {boolean("dropped")}}}),
              R"({"plugins":{"A_c":{"type":"light","params":{}},)"
              R"("b":{"type":null,"params":{}}}})");
    // It is asked about nevertheless.
    EXPECT_EQ(std::ranges::count(sdk.calls, "default dropped"), 1);
}

TEST(BaseDocument, IsTheSameInAFile) {
    FakeSdk sdk;
    // The document is written in blocks, of which this takes several.
    const std::string longName(50'000, 'c');
    for (const std::string& name : {std::string("b"), longName, longName + "d", longName + "e"}) {
        sdk.classes.push_back({.name = name, .parameters = {boolean("p")}});
    }
    const BaseDocument document{Renderer()};
    std::FILE* file = std::tmpfile();
    ASSERT_NE(file, nullptr);
    document.write(file);
    std::rewind(file);
    EXPECT_EQ(readOrExit(File(file), "unreadable"), document.text());
}

TEST(BaseDocument, ATypeWithoutNameCountsOnlyInAClassThatIsKept) {
    EXPECT_EQ(documentOf({{.name = "a"},
                          {.name = "A", .parameters = {nameless}},
                          {.name = "b", .parameters = {boolean("p")}}}),
              R"({"plugins":{"a":{"type":null,"params":{}},)"
              R"("b":{"type":null,"params":{"p":{"type":"bool","defaultValue":"1"}}}}})");
}

TEST(BaseDocumentDeathTest, ATypeWithoutNameEndsTheProcessWhenTheTextIsMade) {
    FakeSdk sdk;
    sdk.classes = {{.name = "a", .parameters = {nameless}}, {.name = "b"}};
    const BaseDocument document{Renderer()};
    EXPECT_EXIT((showOutputAtExit(), static_cast<void>(document.text())), isBrokenMetadata,
                "^Error No Ovix Type!\n$");
    EXPECT_EXIT((showOutputAtExit(), document.write(stderr)), isBrokenMetadata,
                "^Error No Ovix Type!\n$");
}

TEST(BaseDocumentDeathTest, WhatIsWrongWithALaterClassComesFirst) {
    const auto endOfB = [] {
        showOutputAtExit();
        documentOf({{.name = "a", .parameters = {nameless}},
                    {.name = "b", .categoryBits = 1U << 2U | 1U << 6U}});
    };
    EXPECT_EXIT(endOfB(), ::testing::ExitedWithCode(1), "^Plugin type: b has ");
}

}  // namespace
}  // namespace metagen

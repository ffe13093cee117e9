#include "sdk/sdk_memory.h"

#include <gtest/gtest.h>

#include "sdk/fake_sdk.h"

namespace metagen {
namespace {

using testing::FakeSdk;

// What is not freed, freed twice or freed wrongly fails in the fake SDK.

TEST(SdkMemory, TextsOfAVectorAreCopiedAndTheVectorReleased) {
    FakeSdk sdk;
    EXPECT_EQ(takeTexts(sdk.makeTextVector({"b", "a", "b"})),
              (std::vector<std::string>{"b", "a", "b"}));
}

TEST(SdkMemory, AnEmptyVectorIsReleased) {
    FakeSdk sdk;
    EXPECT_TRUE(takeTexts(sdk.makeTextVector({})).empty());
}

TEST(SdkMemory, ANullVectorIsEmptyAndANullTextToo) {
    FakeSdk sdk;
    EXPECT_TRUE(takeTexts(nullptr).empty());
    EXPECT_EQ(takeTexts(sdk.makeTextVector({nullptr})), std::vector<std::string>{""});
}

TEST(SdkMemory, AValueFreesItsText) {
    FakeSdk sdk;
    SdkValue value;
    value.raw.kind = qyra_kind::text;
    value.raw.text = sdk.allocateText("t");
}

TEST(SdkMemory, AValueFreesTheElementsOfEveryListKind) {
    FakeSdk sdk;
    for (const std::int32_t kind : {100, 101, 104, 105, 108, 110}) {
        SdkValue value;
        value.raw.kind = kind;
        value.raw.count = 1;
        value.raw.elements = sdk.allocate(64);
    }
}

TEST(SdkMemory, ATextListFreesItsTextsToo) {
    FakeSdk sdk;
    SdkValue value;
    value.raw.kind = qyra_kind::textList;
    value.raw.count = 3;
    value.raw.elements =
        sdk.allocateArray<char*>({sdk.allocateText("a"), nullptr, sdk.allocateText("b")});
}

TEST(SdkMemory, AGenericListFreesNestedValues) {
    FakeSdk sdk;
    QyraValue text = {};
    text.kind = qyra_kind::text;
    text.text = sdk.allocateText("inner");
    QyraValue inner = {};
    inner.kind = qyra_kind::genericList;
    inner.count = 1;
    inner.elements = sdk.allocateArray<QyraValue>({text});
    SdkValue value;
    value.raw.kind = qyra_kind::genericList;
    value.raw.count = 2;
    value.raw.elements = sdk.allocateArray<QyraValue>({inner, QyraValue{}});
}

TEST(SdkMemory, AListWithoutAnArrayHasNoElements) {
    FakeSdk sdk;
    SdkValue value;
    value.raw.kind = qyra_kind::genericList;
    value.raw.count = 4;
    value.raw.elements = nullptr;
    EXPECT_TRUE(elementsOf<QyraValue>(value.raw).empty());
}

}  // namespace
}  // namespace metagen

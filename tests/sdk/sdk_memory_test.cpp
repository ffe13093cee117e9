#include "sdk/sdk_memory.h"

#include <gtest/gtest.h>

#include "sdk/entry_point_table.h"
#include "sdk/exceptions.h"
#include "sdk/fake_sdk.h"
#include "sdk/parameter_type.h"

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

TEST(SdkMemory, AVectorIsReleasedHoweverItsReadingEnds) {
    FakeSdk sdk;
    entryPoints().getVectorElement = [](const void*, std::uint32_t) -> const char* {
        throw Qyra::QyraException("no element");
    };
    EXPECT_THROW(takeTexts(sdk.makeTextVector({"a"})), Qyra::QyraException);
}

TEST(SdkMemory, AValueFreesItsText) {
    FakeSdk sdk;
    SdkValue value;
    value.raw.kind = type_code::string;
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
    value.raw.kind = listCodeOf(type_code::string);
    value.raw.count = 3;
    value.raw.elements =
        sdk.allocateArray<char*>({sdk.allocateText("a"), nullptr, sdk.allocateText("b")});
}

TEST(SdkMemory, AGenericListFreesNestedValues) {
    FakeSdk sdk;
    QyraValue text = {};
    text.kind = type_code::string;
    text.text = sdk.allocateText("inner");
    QyraValue inner = {};
    inner.kind = type_code::list;
    inner.count = 1;
    inner.elements = sdk.allocateArray<QyraValue>({text});
    SdkValue value;
    value.raw.kind = type_code::list;
    value.raw.count = 2;
    value.raw.elements = sdk.allocateArray<QyraValue>({inner, QyraValue{}});
}

TEST(SdkMemory, AListWithoutAnArrayHasNoElements) {
    FakeSdk sdk;
    SdkValue value;
    value.raw.kind = type_code::list;
    value.raw.count = 4;
    value.raw.elements = nullptr;
    EXPECT_TRUE(elementsOf<QyraValue>(value.raw).empty());
}

TEST(ElementCount, IsThatOfAListWithAnArray) {
    int array = 0;
    QyraValue value = {};
    value.count = 3;
    for (const std::int32_t kind : {12, 100, 101, 104, 105, 108, 109, 110}) {
        value.kind = kind;
        value.elements = &array;
        EXPECT_EQ(elementCount(value), 3U) << kind;
        value.elements = nullptr;
        EXPECT_EQ(elementCount(value), 0U) << kind;
    }
}

TEST(ElementCount, OfWhatIsNoListIsZero) {
    char text[] = "text";
    QyraValue value = {};
    value.count = 3;
    value.text = text;
    for (const std::int32_t kind : {-1, 0, 9, 10, 11, 99, 102, 103, 106, 107, 111, 10000}) {
        value.kind = kind;
        EXPECT_EQ(elementCount(value), 0U) << kind;
    }
}

}  // namespace
}  // namespace metagen

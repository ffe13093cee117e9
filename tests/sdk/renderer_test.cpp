#include "sdk/renderer.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "sdk/entry_point_table.h"
#include "sdk/exceptions.h"
#include "sdk/fake_sdk.h"
#include "support/exit_status.h"

namespace metagen {
namespace {

using testing::FakeGuide;
using testing::FakeParameter;
using testing::FakeSdk;
using Texts = std::vector<std::string>;

TEST(Renderer, IsTiedToItsObjectAndReleasedBeforeItsTypeIds) {
    FakeSdk sdk;
    {
        const Renderer renderer;
        EXPECT_EQ(sdk.userData, &renderer);
        EXPECT_EQ(renderer.pluginClassTypeIds().size(), 3U);
        EXPECT_EQ(renderer.pluginClassTypeIds()[2], 3);
    }
    EXPECT_EQ(sdk.calls, (Texts{"create", "setUserData", "typeIds", "release", "free"}));
}

TEST(Renderer, CreationThatFailsThrowsWithTheSdksCode) {
    FakeSdk sdk;
    sdk.refusesRenderers = true;
    try {
        const Renderer renderer;
        FAIL() << "nothing thrown";
    } catch (const Qyra::InstantiationErr& exception) {
        EXPECT_EQ(exception.message(), "Instantiation error.");
        EXPECT_EQ(exception.errorCode(), 77U);
    }
    EXPECT_EQ(sdk.calls, Texts{"create"});
}

TEST(Renderer, ListsClassesAndParametersInTheSdksOrder) {
    FakeSdk sdk;
    sdk.classes = {{.name = "Z", .parameters = {{.name = "b"}, {.name = "a"}}}, {.name = "A"}};
    const Renderer renderer;
    EXPECT_EQ(renderer.pluginClassNames(), (Texts{"Z", "A"}));
    EXPECT_EQ(renderer.parameterNames("Z"), (Texts{"b", "a"}));
    EXPECT_EQ(renderer.parameterNames("A"), Texts{});
}

TEST(Renderer, ANullVectorIsAnEmptyList) {
    FakeSdk sdk;
    sdk.classes = {{.name = "A", .hasNullNames = true}};
    sdk.hasNullClassNames = true;
    const Renderer renderer;
    EXPECT_EQ(renderer.pluginClassNames(), Texts{});
    EXPECT_EQ(renderer.parameterNames("A"), Texts{});
}

TEST(Renderer, TypeTextComesFromTheTypeId) {
    FakeSdk sdk;
    sdk.classes = {{.name = "A", .typeText = "TypeOfA"}};
    const Renderer renderer;
    EXPECT_EQ(renderer.typeText("A"), "TypeOfA");
    EXPECT_EQ(renderer.typeText("unknown"), "");
}

TEST(Renderer, AsksAboutAClassByItsTypeText) {
    FakeSdk sdk;
    sdk.classes = {{.name = "A",
                    .categoryBits = std::uint64_t{1} << 40U | 2U,
                    .parameters = {{.name = "p"}},
                    .typeText = "TypeOfA"}};
    const Renderer renderer;
    EXPECT_EQ(renderer.categoryBits("TypeOfA"), std::uint64_t{1} << 40U | 2U);
    EXPECT_EQ(renderer.parameterNames("TypeOfA"), Texts{"p"});
    const Definition definition = renderer.definition("TypeOfA", "p");
    EXPECT_EQ(definition.get(), &sdk.classes[0].parameters[0]);
    EXPECT_EQ(renderer.gpuSupport("TypeOfA", definition), 1);
}

TEST(Definition, IsAListWhenItHasACountOfElements) {
    const FakeSdk sdk;
    const FakeParameter single = {.name = "p", .code = 101};
    EXPECT_FALSE(Definition(&single).isList());
    EXPECT_EQ(Definition(&single).typeCode(), 101);
    for (const std::uint32_t count : {0U, 3U, 0xFFFFFFFEU}) {
        const FakeParameter list = {.name = "p", .elements = count};
        EXPECT_TRUE(Definition(&list).isList()) << count;
    }
}

TEST(Definition, AGuideGivesANumberAndASequence) {
    const FakeSdk sdk;
    const FakeParameter guided = {.name = "p", .guide = FakeGuide{.single = 2, .sequence = {0.5F}}};
    EXPECT_TRUE(Definition(&guided).hasDefaultGuide());
    const Definition::Guide guide = Definition(&guided).defaultGuide();
    EXPECT_EQ(guide.number, 2);
    ASSERT_EQ(guide.count, 1U);
    EXPECT_EQ(guide.sequence[0], 0.5F);
    const FakeParameter plain = {.name = "p"};
    EXPECT_FALSE(Definition(&plain).hasDefaultGuide());
}

TEST(Definition, AGuidesSequenceWithoutAnArrayIsEmpty) {
    const FakeSdk sdk;
    const FakeParameter guided = {.name = "p", .guide = FakeGuide{}};
    entryPoints().Qyra_UIGuides_getFloats = [](const void*, std::int32_t, float**) { return 3U; };
    EXPECT_EQ(Definition(&guided).defaultGuide().count, 0U);
}

TEST(Definition, AGuideThatTheSdkDoesNotFillIsNone) {
    const FakeSdk sdk;
    const FakeParameter guided = {.name = "p", .guide = FakeGuide{}};
    entryPoints().Qyra_UIGuides_hasType = [](const void*, std::int32_t, std::int32_t*) {};
    entryPoints().Qyra_UIGuides_getFloat = [](const void*, std::int32_t, float*) {};
    EXPECT_FALSE(Definition(&guided).hasDefaultGuide());
    EXPECT_EQ(Definition(&guided).defaultGuide().number, 0);
}

TEST(AskOrExit, GivesTheAnswer) {
    EXPECT_EQ(askOrExit([] { return 7; }), 7);
}

TEST(AskOrExit, LetsOtherExceptionsPass) {
    EXPECT_THROW(askOrExit([] { throw std::invalid_argument(""); }), std::invalid_argument);
}

TEST(AskOrExitDeathTest, EndsWithTheTextOfAnSdkException) {
    const auto ask = [] {
        showOutputAtExit();
        askOrExit([] { throw Qyra::InitErr("no library %s"); });
    };
    EXPECT_EXIT(ask(), ::testing::ExitedWithCode(1), "^no library %s\n$");
}

TEST(PluginReference, CountsTheLow48BitsOfTheIdAsASignedNumber) {
    FakeSdk sdk;
    for (const std::int64_t id : {std::int64_t{5}, 0x0000'7FFF'FFFF'FFFF, -0x0000'8000'0000'0000}) {
        sdk.plugins[id] = {.name = std::to_string(id),
                           .properties = {{1, "of " + std::to_string(id)}}};
    }
    sdk.plugins[-1] = {.name = "-1"};
    const auto reference = [&sdk](std::int64_t id) {
        return QyraPluginReference{sdk.renderer(), id, 1};
    };
    EXPECT_STREQ(pluginName(reference(5)), "5");
    EXPECT_STREQ(pluginName(reference(0x0001'0000'0000'0005)), "5");
    EXPECT_STREQ(pluginName(reference(0x0000'7FFF'FFFF'FFFF)), "140737488355327");
    EXPECT_STREQ(pluginName(reference(0x0000'8000'0000'0000)), "-140737488355328");
    EXPECT_STREQ(pluginName(reference(0x0000'FFFF'FFFF'FFFF)), "-1");
    EXPECT_STREQ(pluginName(reference(-1)), "-1");
    EXPECT_STREQ(propertyName(reference(0x0001'0000'0000'0005)), "of 5");
    EXPECT_TRUE(pluginExists(reference(0x0000'8000'0000'0000)));
    EXPECT_FALSE(pluginExists(reference(0x0000'8000'0000'0001)));
}

TEST(PluginReference, WithoutARendererNamesNothing) {
    FakeSdk sdk;
    sdk.plugins[5] = {.name = "noise"};
    EXPECT_FALSE(pluginExists({nullptr, 5, 0}));
    EXPECT_EQ(pluginName({nullptr, 5, 0}), nullptr);
}

}  // namespace
}  // namespace metagen

#include "sdk/renderer.h"

#include <gtest/gtest.h>

#include "sdk/exceptions.h"
#include "sdk/fake_sdk.h"

namespace metagen {
namespace {

using testing::FakeSdk;
using Texts = std::vector<std::string>;

TEST(Renderer, IsTiedToItsObjectAndReleasedBeforeItsTypeIds) {
    FakeSdk sdk;
    {
        const Renderer renderer;
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

TEST(PluginId, IsTheLow48BitsReadAsASignedNumber) {
    EXPECT_EQ(pluginIdOf(5), 5);
    EXPECT_EQ(pluginIdOf(0x0001'0000'0000'0005), 5);
    EXPECT_EQ(pluginIdOf(0x0000'7FFF'FFFF'FFFF), 0x0000'7FFF'FFFF'FFFF);
    EXPECT_EQ(pluginIdOf(0x0000'8000'0000'0000), -0x0000'8000'0000'0000);
    EXPECT_EQ(pluginIdOf(0x0000'FFFF'FFFF'FFFF), -1);
    EXPECT_EQ(pluginIdOf(-1), -1);
}

}  // namespace
}  // namespace metagen

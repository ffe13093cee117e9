#include "replay_sdk/catalogue.h"

#include <gtest/gtest.h>

#include "replay_sdk/catalogue_helpers.h"

namespace metagen::replay {
namespace {

std::unique_ptr<Catalogue> threeClasses() {
    return readCatalogue(
        R"({"plugins":{"A":{"params":{"x":{"typeCode":1}}},
                       "B":{"params":{"w":{"typeCode":2},"y":{"typeCode":3}}},
                       "C":{}}})");
}

TEST(Catalogue, FindsClassesByName) {
    const auto catalogue = threeClasses();
    EXPECT_EQ(catalogue->classNamed("B"), &catalogue->classes[1]);
    EXPECT_EQ(catalogue->classNamed("b"), nullptr);
    EXPECT_EQ(catalogue->classNamed(""), nullptr);
    EXPECT_EQ(catalogue->classNamed("D"), nullptr);
}

TEST(Catalogue, FindsParametersWithinTheirClass) {
    const auto catalogue = threeClasses();
    const PluginClass& owner = *catalogue->classNamed("B");
    EXPECT_EQ(catalogue->parameterNamed(owner, "w")->facts.typeCode, 2);
    EXPECT_EQ(catalogue->parameterNamed(owner, "y")->facts.typeCode, 3);
    EXPECT_EQ(catalogue->parameterNamed(owner, "x"), nullptr);
    EXPECT_EQ(catalogue->parameterNamed(*catalogue->classNamed("C"), "w"), nullptr);
}

TEST(Catalogue, FindsClassesByTypeTextAndId) {
    const auto catalogue = threeClasses();
    const PluginClass& known = catalogue->classes[2];
    EXPECT_EQ(catalogue->classOfTypeText("C"), &known);
    EXPECT_EQ(catalogue->classOfTypeId(known.typeId), &known);
    EXPECT_EQ(catalogue->classOfTypeText("D"), nullptr);
    EXPECT_EQ(catalogue->classOfTypeId(0), nullptr);
}

}  // namespace
}  // namespace metagen::replay

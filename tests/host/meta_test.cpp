#include "metagen/host/meta.h"

#include <gtest/gtest.h>

namespace metagen::host {
namespace {

DefaultValue textOf(const PluginMeta& plugin) { return plugin.parameters.at("a").defaultValue; }

TEST(Meta, HoldsATextWhole) {
    PluginMeta plugin;
    EXPECT_EQ(std::get<std::string>(textOf(plugin.add("a", "string", 0, ""))), "");
    EXPECT_EQ(std::get<std::string>(textOf(plugin.add("a", "string", 0, "before\0after"))),
              std::string("before\0after", 12));
}

TEST(Meta, ScalesWithTheSceneWhereNothingElseIsSaid) {
    Meta m(1);
    m.scalingParams = {{"A", {{"length", {}}}}};
    const Scaling& scaling = m.scalingParams.at("A").at("length");
    EXPECT_EQ(scaling.unit, Scaling::UnitType::Scene);
    EXPECT_EQ(scaling.power, 1);
    EXPECT_FALSE(scaling.inverse);
    EXPECT_TRUE(scaling.conditions.empty());
}

}  // namespace
}  // namespace metagen::host

#include "combine/checks.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "json/document.h"
#include "support/exit_status.h"
#include "support/message_of.h"

namespace metagen {
namespace {

using Entries = std::vector<std::string>;

const std::string noMode =
    "P: the plugin has float texture handler(s) but no 'texture_multiplier_mode' \"";

/// The failures of the plugins.
Entries failuresOf(const std::string& plugins) {
    CombineReport report;
    const json::Document document(R"({"plugins":)" + plugins + "}");
    checkTextureHandlers(json::asObject(document.root()), report);
    return report.handlerCheckFailures;
}

/// A plugin P with these parameters and user data of these names, in braces.
std::string pluginP(const std::string& params, std::initializer_list<std::string> userData) {
    std::string entries;
    for (const std::string& name : userData) {
        entries += (entries.empty() ? "\"" : ",\"") + name + "\":{}";
    }
    return R"({"P":{"params":{)" + params + R"(},"userData":{)" + entries + "}}}";
}

std::string handler(const std::string& name) { return R"("n":{"handler":")" + name + "\"}"; }

const std::string floatHandler = handler("FloatTexFrameHandler");
const std::string colorHandler = handler("ColorTexFrameHandler");
const std::string mode = "texture_multiplier_mode";

TEST(CheckTextureHandlersDeathTest, EndsTheProcessWithoutPlugins) {
    const auto check = [] {
        showOutputAtExit();
        CombineReport report;
        checkTextureHandlers({}, report);
    };
    EXPECT_EXIT(check(), testing::ExitedWithCode(1), "^Combined Json has no Plugins!\n$");
}

TEST(CheckTextureHandlers, ThrowsForPluginsThatAreNoObject) {
    EXPECT_EQ(messageOf([] { failuresOf("[]"); }), noObjectMessage);
}

TEST(CheckTextureHandlers, PassesOverWhatIsNoPlugin) {
    const std::string more = R"("P":{"params":{},"userData":{"n_tex":{}}}})";
    EXPECT_EQ(failuresOf(R"({"A":1,)" + more), failuresOf("{" + more));
    EXPECT_EQ(failuresOf("{" + more).size(), 1U);
}

TEST(CheckTextureHandlers, NeverExaminesAPluginWithoutUserData) {
    EXPECT_EQ(failuresOf(R"({"P":{"params":{"n":{"handler":"FloatTexFrameHandler"}}}})"),
              Entries());
}

TEST(CheckTextureHandlers, NeverExaminesAPluginWithoutParameters) {
    EXPECT_EQ(failuresOf(R"({"P":{"userData":{"n_tex":{}}}})"), Entries());
}

TEST(CheckTextureHandlers, ThrowsForMembersThatAreNoObjects) {
    EXPECT_EQ(messageOf([] { failuresOf(R"({"P":{"params":[],"userData":{}}})"); }),
              noObjectMessage);
    EXPECT_EQ(messageOf([] { failuresOf(R"({"P":{"params":{},"userData":null}})"); }),
              noObjectMessage);
    EXPECT_EQ(messageOf([] { failuresOf(pluginP(R"("n":1)", {"n_tex"})); }), noObjectMessage);
}

TEST(CheckTextureHandlers, LetsParametersWithoutHandlerDataPass) {
    EXPECT_EQ(failuresOf(pluginP(R"("n":1,"m":{"handler":"FloatTexFrameHandler"})", {"other"})),
              Entries());
}

TEST(CheckTextureHandlers, MissesAHandlerOnlyOnceInTheParameterPass) {
    EXPECT_EQ(failuresOf(pluginP(R"("n":{})", {"n_tex"})),
              Entries({"P::n: Userdata for handler exist, but no handler was defined",
                       "P::n: Expecting a handler"}));
}

TEST(CheckTextureHandlers, LooksForEachOfTheSixNames) {
    for (const char* suffix : {"_tex", "_color", "_float", "_tex_on", "_tex_mult", "_res_mult"}) {
        EXPECT_EQ(failuresOf(pluginP(R"("n":{})", {"n" + std::string(suffix)})),
                  Entries({"P::n: Userdata for handler exist, but no handler was defined",
                           "P::n: Expecting a handler"}))
            << suffix;
    }
}

TEST(CheckTextureHandlers, PassesACompleteFloatHandler) {
    EXPECT_EQ(failuresOf(pluginP(floatHandler, {"n_float", "n_tex", "n_tex_on", "n_tex_mult",
                                                "n_res_mult", mode})),
              Entries());
}

TEST(CheckTextureHandlers, PassesACompleteColorHandler) {
    EXPECT_EQ(failuresOf(pluginP(colorHandler, {"n_color", "n_tex", "n_tex_on", "n_tex_mult",
                                                "n_res_mult", mode})),
              Entries());
}

TEST(CheckTextureHandlers, MissesTheMultiplierMode) {
    EXPECT_EQ(failuresOf(pluginP(floatHandler,
                                 {"n_float", "n_tex", "n_tex_on", "n_tex_mult", "n_res_mult"})),
              Entries({noMode}));
}

TEST(CheckTextureHandlers, FindsAColorHandlerOverFloatData) {
    EXPECT_EQ(failuresOf(pluginP(colorHandler, {"n_float", "n_tex", "n_tex_on", "n_tex_mult",
                                                "n_res_mult", mode})),
              Entries({"P::n: mismatch handler type \"ColorTexFrameHandler\", expecting "
                       "\"FloatTexFrameHandler\"",
                       "P::n: Color texture frame handler defined, but no \"_color\" user data"}));
}

TEST(CheckTextureHandlers, FindsAFloatHandlerOverColorData) {
    EXPECT_EQ(failuresOf(pluginP(floatHandler, {"n_color", "n_tex", "n_tex_on", "n_tex_mult",
                                                "n_res_mult", mode})),
              Entries({"P::n: mismatch handler type \"FloatTexFrameHandler\", expecting "
                       "\"ColorTexFrameHandler\"",
                       "P::n: Float texture frame handler defined, but no \"_float\" user data"}));
}

TEST(CheckTextureHandlers, FindsColorAndFloatTogether) {
    EXPECT_EQ(failuresOf(pluginP(colorHandler, {"n_color", "n_float", "n_tex", "n_tex_on",
                                                "n_tex_mult", "n_res_mult", mode})),
              Entries({"P::n: expecting exactly one n_float or n_color",
                       "P::n: mismatch handler type \"ColorTexFrameHandler\", expecting "
                       "\"FloatTexFrameHandler\""}));
    EXPECT_EQ(failuresOf(pluginP(floatHandler, {"n_color", "n_float", "n_tex", "n_tex_on",
                                                "n_tex_mult", "n_res_mult", mode})),
              Entries({"P::n: expecting exactly one n_float or n_color",
                       "P::n: Float texture frame handler defined, but no \"_float\" user data"}));
}

TEST(CheckTextureHandlers, FindsNeitherColorNorFloat) {
    EXPECT_EQ(
        failuresOf(pluginP(floatHandler, {"n_tex", "n_tex_on", "n_tex_mult", "n_res_mult", mode})),
        Entries({"P::n: expecting exactly one n_float or n_color",
                 "P::n: Float texture frame handler defined, but no \"_float\" user data"}));
}

TEST(CheckTextureHandlers, MissesEachOfTheSharedNamesAndGoesOn) {
    const std::string all[] = {"n_tex", "n_tex_on", "n_tex_mult", "n_res_mult"};
    for (const std::string& missing : all) {
        std::string userData = R"("n_color":{},"n_float":{},"texture_multiplier_mode":{})";
        for (const std::string& name : all) {
            if (name != missing) userData += ",\"" + name + "\":{}";
        }
        EXPECT_EQ(failuresOf(R"({"P":{"params":{)" + colorHandler + R"(},"userData":{)" + userData +
                             "}}}"),
                  Entries({"P::n: _tex_* user data is missing",
                           "P::n: expecting exactly one n_float or n_color",
                           "P::n: mismatch handler type \"ColorTexFrameHandler\", expecting "
                           "\"FloatTexFrameHandler\""}))
            << missing;
    }
}

TEST(CheckTextureHandlers, FindsAHandlerOfAnotherKind) {
    EXPECT_EQ(failuresOf(pluginP(handler("Other"), {"n_float", "n_tex", "n_tex_on", "n_tex_mult",
                                                    "n_res_mult", mode})),
              Entries({"P::n: mismatch handler type \"Other\", expecting \"FloatTexFrameHandler\"",
                       "P::n: Texture frame handler user data exist, but no handler defined"}));
    EXPECT_EQ(failuresOf(pluginP(handler("Other"), {"n_color", "n_tex", "n_tex_on", "n_tex_mult",
                                                    "n_res_mult", mode})),
              Entries({"P::n: mismatch handler type \"Other\", expecting \"ColorTexFrameHandler\"",
                       "P::n: Texture frame handler user data exist, but no handler defined"}));
}

TEST(CheckTextureHandlers, AsksNoNameOfAHandlerThatIsNoText) {
    EXPECT_EQ(failuresOf(pluginP(R"("n":{"handler":7})", {"n_color", "n_float", mode})),
              Entries({"P::n: _tex_* user data is missing",
                       "P::n: expecting exactly one n_float or n_color"}));
}

TEST(CheckTextureHandlers, FindsHandlerDataOfAMissingParameter) {
    EXPECT_EQ(failuresOf(pluginP("", {"n_tex_on", "n_tex_mult"})),
              Entries({"P::n: Texture handler userdata seem to be defined: n_tex_mult"}));
}

TEST(CheckTextureHandlers, CountsANameUnderTheSuffixAtItsEnd) {
    EXPECT_EQ(failuresOf(pluginP("", {"a_tex", "b_tex_on", "c_tex_mult", "d_res_mult", "e_color",
                                      "f_float", "g_tex_off", "h_duplicate", "_tex"})),
              Entries({"P::: Texture handler userdata seem to be defined: _tex",
                       "P::a: Texture handler userdata seem to be defined: a_tex",
                       "P::b: Texture handler userdata seem to be defined: b_tex_on",
                       "P::c: Texture handler userdata seem to be defined: c_tex_mult",
                       "P::d: Texture handler userdata seem to be defined: d_res_mult",
                       "P::e: Texture handler userdata seem to be defined: e_color",
                       "P::f: Texture handler userdata seem to be defined: f_float"}));
}

TEST(CheckTextureHandlers, KeepsTheFirstSuffixOfEachName) {
    EXPECT_EQ(failuresOf(pluginP("", {"n_tex", "n_float", "n_color", "m_tex", "m_res_mult"})),
              Entries({"P::m: Texture handler userdata seem to be defined: m_res_mult",
                       "P::n: Texture handler userdata seem to be defined: n_color"}));
}

TEST(CheckTextureHandlers, GoesThroughParameterNamesInTheirOwnOrder) {
    // By user-data names "a_b_tex" comes before "a_tex", by parameter names "a" before "a_b".
    EXPECT_EQ(failuresOf(pluginP("", {"a_b_tex", "a_tex"})),
              Entries({"P::a: Texture handler userdata seem to be defined: a_tex",
                       "P::a_b: Texture handler userdata seem to be defined: a_b_tex"}));
}

TEST(CheckTextureHandlers, CutsOneSuffixOnly) {
    EXPECT_EQ(failuresOf(pluginP("", {"n_color_tex"})),
              Entries({"P::n_color: Texture handler userdata seem to be defined: n_color_tex"}));
}

TEST(CheckTextureHandlers, GoesThroughThePluginsInOrder) {
    EXPECT_EQ(failuresOf(R"({"b":{"params":{},"userData":{"x_tex":{}}},
                             "A":{"params":{},"userData":{"y_tex":{}}}})"),
              Entries({"A::y: Texture handler userdata seem to be defined: y_tex",
                       "b::x: Texture handler userdata seem to be defined: x_tex"}));
}

TEST(CheckTextureHandlers, RecordsThePassesOneAfterTheOther) {
    EXPECT_EQ(failuresOf(pluginP(floatHandler + R"(,"m":{})", {"m_tex", "n_float"})),
              Entries({"P::m: Userdata for handler exist, but no handler was defined",
                       "P::n: _tex_* user data is missing", noMode, "P::m: Expecting a handler"}));
}

}  // namespace
}  // namespace metagen

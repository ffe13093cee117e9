#include "model/handlers.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

#include "model/reading.h"
#include "support/numbers.h"

namespace metagen {
namespace {

/// The plugins, and their parameters with the host's word for the kind and the default.
std::string read(const std::string& plugins) {
    const json::Document document = documentOf(plugins);
    std::string text;
    for (const auto& [plugin, parameters] : readHandlers(objectOf(document))) {
        text.append("[").append(plugin).append("]");
        for (const HandlerParameter& parameter : parameters) {
            text.append(" ").append(parameter.name).append("=");
            text.append(parameter.kind->hostMember).append("(");
            appendFloatList(text, parameter.defaultValue());
            text += ')';
        }
    }
    return text;
}

/// What is read of a parameter "p" with these members; nothing when it is passed over.
std::string read(const std::string& param, const std::string& userData) {
    const std::string text =
        read("{'A': {'params': {'p': {" + param + "}}, 'userData': {" + userData + "}}}");
    const std::string before = "[A] p=";
    return text.substr(text.starts_with(before) ? before.size() : 0);
}

std::string readColor(const std::string& userData) {
    return read("'handler': 'ColorTexFrameHandler'", userData);
}

std::string readFloat(const std::string& userData) {
    return read("'handler': 'FloatTexFrameHandler'", userData);
}

const std::string frame = "'p_tex': 0, 'p_tex_on': 0, 'p_tex_mult': 0";

std::string withColor(const std::string& text) {
    return frame + ", 'p_color': {'defaultValue': '" + text + "'}";
}

std::string withFloat(const std::string& text) {
    return frame + ", 'p_float': {'defaultValue': '" + text + "'}";
}

std::string color(const std::string& text) { return readColor(withColor(text)); }

std::string floatNumber(const std::string& text) { return readFloat(withFloat(text)); }

TEST(HandlerParameter, WithoutHandlerIsNone) {
    EXPECT_EQ(read("'type': 'color'", withColor("1")), "");
}

TEST(HandlerParameter, HandlersAreComparedWhole) {
    const std::string everything = withColor("2") +
                                   ", 'p_float': {'defaultValue': '2'},"
                                   " 'p_duplicate': 0, 'p_duplicate_output': 0";
    for (const std::string handler :
         {"ColorTexFrameHandler", "FloatTexFrameHandler", "DuplicateHandler"}) {
        const auto readAs = [&](const std::string& text) {
            return read("'handler': '" + text + "'", everything);
        };
        EXPECT_NE(readAs(handler), "") << handler;
        EXPECT_EQ(readAs(handler + "2"), "") << handler;
        EXPECT_EQ(readAs(handler + "\\u0000"), "") << handler;
        EXPECT_EQ(readAs(handler.substr(1)), "") << handler;
        EXPECT_EQ(readAs(handler.substr(0, handler.size() - 1)), "") << handler;
        EXPECT_EQ(readAs(" " + handler), "") << handler;
    }
}

TEST(HandlerParameter, AnotherHandlerIsNone) {
    for (const std::string handler : {"", "colorTexFrameHandler", "FileBrowserHandler"}) {
        EXPECT_EQ(read("'handler': '" + handler + "'", withColor("1")), "") << handler;
    }
}

TEST(HandlerParameter, NothingElseOfItIsRead) {
    EXPECT_EQ(read("'handler': 'FloatTexFrameHandler', 'type': 1, 'scaling': 1, 'defaultValue': 1",
                   withFloat("2")),
              "Float(2.f)");
}

TEST(HandlerParameter, AColorHasThreeNumbersAndNoAlpha) {
    EXPECT_EQ(color("AColor(0.1,0.2,0.3,0.4)"), "Color(0.1f, 0.2f, 0.3f)");
    EXPECT_EQ(color("Color(1,0.5,0.2)"), "Color(1.f, 0.5f, 0.2f)");
}

TEST(HandlerParameter, AGreyColorHasOneNumber) {
    EXPECT_EQ(color("2"), "Color(2.f)");
    EXPECT_EQ(color(" 0.5x"), "Color(0.5f)");
    EXPECT_EQ(color("AColor(2,2,2,1)"), "Color(2.f)");
    EXPECT_EQ(color("AColor(inf,inf,inf,1)"), "Color(inff)");
    EXPECT_EQ(color("AColor(0,-0,0,1)"), "Color(0.f)");
}

TEST(HandlerParameter, OneUnequalComponentMakesAColor) {
    EXPECT_EQ(color("AColor(2,1,1,0)"), "Color(2.f, 1.f, 1.f)");
    EXPECT_EQ(color("AColor(1,2,1,0)"), "Color(1.f, 2.f, 1.f)");
    EXPECT_EQ(color("AColor(1,1,2,0)"), "Color(1.f, 1.f, 2.f)");
}

TEST(HandlerParameter, TheGreyOneIsTheHostsDefaultWhateverItsAlpha) {
    EXPECT_EQ(color("1"), "Color()");
    EXPECT_EQ(color("AColor(1,1,1,0)"), "Color()");
    EXPECT_EQ(color("AColor(1,1,1,0.5)"), "Color()");
}

TEST(HandlerParameter, NaNIsNeverGrey) {
    EXPECT_EQ(color("nan"), "Color(nanf, nanf, nanf)");
    EXPECT_EQ(color("AColor(nan,nan,nan,1)"), "Color(nanf, nanf, nanf)");
    EXPECT_EQ(color("AColor(1,1,nan,1)"), "Color(1.f, 1.f, nanf)");
    EXPECT_EQ(color("AColor(1,nan,1,1)"), "Color(1.f, nanf, 1.f)");
}

TEST(HandlerParameter, AColorIsReadByItsFieldsWhateverItsWord) {
    EXPECT_EQ(color("X( 1, y,3)"), "Color(1.f, 0.f, 3.f)");
    EXPECT_EQ(color("1,2,3,4,5,6"), "Color(2.f, 3.f, 4.f)");
}

TEST(HandlerParameter, AColorThatIsNothingIsAnError) {
    for (const char* text : {"abc", "", "Color(1,2)"}) {
        EXPECT_EQ(messageOf<std::invalid_argument>([&] { color(text); }), "invalid stof argument");
    }
}

TEST(HandlerParameter, AFloatHasOneNumber) {
    EXPECT_EQ(floatNumber("0.25"), "Float(0.25f)");
    EXPECT_EQ(floatNumber(" -3e0abc"), "Float(-3.f)");
    EXPECT_EQ(floatNumber("0"), "Float(0.f)");
    EXPECT_EQ(floatNumber("16777217"), "Float(1.67772e+07f)");
    EXPECT_EQ(floatNumber("nan"), "Float(nanf)");
}

TEST(HandlerParameter, TheFloatOneIsTheHostsDefault) { EXPECT_EQ(floatNumber("1"), "Float()"); }

TEST(HandlerParameter, AFloatThatIsNoNumberIsAnError) {
    EXPECT_EQ(messageOf<std::invalid_argument>([] { floatNumber("Float(1)"); }),
              "invalid stof argument");
    EXPECT_EQ(messageOf<std::out_of_range>([] { floatNumber("1e39"); }),
              "stof argument out of range");
}

TEST(HandlerParameter, ATextureFrameTakesAllItsUserData) {
    const std::string value =
        ", 'p_color': {'defaultValue': '1'}, 'p_float': {'defaultValue': '1'}";
    for (const std::string lacking : {"'p_tex_on': 0, 'p_tex_mult': 0",
                                      "'p_tex': 0, 'p_tex_mult': 0", "'p_tex': 0, 'p_tex_on': 0"}) {
        EXPECT_EQ(readColor(lacking + value), "") << lacking;
        EXPECT_EQ(readFloat(lacking + value), "") << lacking;
    }
}

TEST(HandlerParameter, UserDataOfOtherParametersDoNotCount) {
    EXPECT_EQ(readColor("'q_tex': 0, 'q_tex_on': 0, 'q_tex_mult': 0, 'q_color': {}"), "");
}

TEST(HandlerParameter, ColorAndFloatDoNotFallBackToEachOther) {
    EXPECT_EQ(readColor(withFloat("1")), "");
    EXPECT_EQ(readFloat(withColor("1")), "");
}

TEST(HandlerParameter, AnIncompleteFrameHidesABadDefault) {
    EXPECT_EQ(readColor("'p_tex': 0, 'p_tex_on': 0, 'p_color': 1"), "");
}

TEST(HandlerParameter, TheValueHasToBeAnObjectWithADefaultText) {
    const std::pair<std::string, std::string> kinds[] = {
        {"'handler': 'ColorTexFrameHandler'", frame + ", 'p_color': "},
        {"'handler': 'FloatTexFrameHandler'", frame + ", 'p_float': "}};
    for (const auto& kind : kinds) {
        const auto readValue = [&](const std::string& value) {
            read(kind.first, kind.second + value);
        };
        EXPECT_EQ(messageOf<std::runtime_error>([&] { readValue("1"); }), noObjectMessage);
        EXPECT_EQ(messageOf<std::out_of_range>([&] { readValue("{}"); }), missingMessage);
        EXPECT_EQ(messageOf<std::runtime_error>([&] { readValue("{'defaultValue': 1}"); }),
                  noTextMessage);
    }
}

TEST(HandlerParameter, ADuplicateTakesBothItsUserData) {
    const std::string duplicate = "'handler': 'DuplicateHandler'";
    EXPECT_EQ(read(duplicate, "'p_duplicate': 0, 'p_duplicate_output': 0"), "Duplicate()");
    EXPECT_EQ(read(duplicate, "'p_duplicate': 0"), "");
    EXPECT_EQ(read(duplicate, "'p_duplicate_output': 0"), "");
}

TEST(HandlerParameter, TheHandlerHasToBeAText) {
    EXPECT_EQ(messageOf<std::runtime_error>([] { read("'handler': 1", ""); }), noTextMessage);
}

const std::string duplicate = "{'handler': 'DuplicateHandler'}";
const std::string companions = "'a_duplicate': 0, 'a_duplicate_output': 0";

TEST(ReadHandlers, KeepsHandlerParametersOnly) {
    EXPECT_EQ(read("{'A': {'type': 'material', 'params': {'a': " + duplicate +
                   ", 'b': {'type': 'float'}, 'c': null, 'd': " + duplicate + "}, 'userData': {" +
                   companions + "}}}"),
              "[A] a=Duplicate()");
}

TEST(ReadHandlers, NamesAreInTheOrderOfTheirBytes) {
    const std::string plugin = "{'params': {'a': " + duplicate + ", 'B': " + duplicate +
                               "}, 'userData': {" + companions +
                               ", 'B_duplicate': 0, 'B_duplicate_output': 0}}";
    EXPECT_EQ(read("{'q': " + plugin + ", 'P': " + plugin + "}"),
              "[P] B=Duplicate() a=Duplicate()[q] B=Duplicate() a=Duplicate()");
}

TEST(ReadHandlers, LeavesOutPluginsWithoutHandlerParameters) {
    EXPECT_EQ(read("{'A': {'params': {'a': {'type': 'float'}}, 'userData': {}},"
                   " 'B': {'params': {}, 'userData': {}}, 'C': {}}"),
              "");
}

TEST(ReadHandlers, TakesParametersWithUserData) {
    EXPECT_EQ(read("{'A': {'params': {'a': " + duplicate + "}}}"), "");
    EXPECT_EQ(read("{'A': {'params': 1}, 'B': {'userData': 1}}"), "");
}

TEST(ReadHandlers, TakesObjectsOnly) {
    for (const char* plugins : {"{'A': null}", "{'A': {'params': 1, 'userData': {}}}",
                                "{'A': {'params': {}, 'userData': 1}}"}) {
        EXPECT_EQ(messageOf<std::runtime_error>([&] { read(plugins); }), noObjectMessage)
            << plugins;
    }
}

}  // namespace
}  // namespace metagen

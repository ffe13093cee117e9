#include <gtest/gtest.h>

#include <stdexcept>

#include "model/model_reader.h"
#include "model/reading.h"

namespace metagen {
namespace {

/// What is read of the parameter "p" with this handler and this user data.
std::string read(const std::string& param, const std::string& userData) {
    const json::Value paramValue = documentOf(param);
    const json::Value userDataValue = documentOf(userData);
    return textOf(readHandlerEntry(json::asObject(paramValue), "p", json::asObject(userDataValue)));
}

std::string readColor(const std::string& userData) {
    return read(R"({"handler":"ColorTexFrameHandler"})", userData);
}

std::string readFloat(const std::string& userData) {
    return read(R"({"handler":"FloatTexFrameHandler"})", userData);
}

const std::string frame = R"("p_tex":0,"p_tex_on":0,"p_tex_mult":0)";

std::string withColor(const std::string& text) {
    return "{" + frame + R"(,"p_color":{"defaultValue":")" + text + R"("}})";
}

std::string withFloat(const std::string& text) {
    return "{" + frame + R"(,"p_float":{"defaultValue":")" + text + R"("}})";
}

std::string kept(const std::string& kind, const std::string& value) {
    return "state 1, flags 4294967295, file -1, list -1, type " + kind + ", default " + value +
           ", scale 0 1";
}

const std::string notKept =
    "state 0, flags 4294967295, file -1, list -1, type -, default none, scale 0 1";

TEST(ReadHandlerEntry, AParameterWithoutHandlerIsNone) {
    EXPECT_EQ(read(R"({"type":"color"})", withColor("1")), notKept);
}

TEST(ReadHandlerEntry, HandlersAreComparedWhole) {
    const std::string everything =
        "{" + frame + R"(,"p_color":{"defaultValue":"2"},"p_float":{"defaultValue":"2"},)" +
        R"("p_duplicate":0,"p_duplicate_output":0})";
    for (const std::string handler :
         {"ColorTexFrameHandler", "FloatTexFrameHandler", "DuplicateHandler"}) {
        const auto readAs = [&](const std::string& text) {
            return read(R"({"handler":")" + text + R"("})", everything);
        };
        EXPECT_NE(readAs(handler), notKept) << handler;
        EXPECT_EQ(readAs(handler + "2"), notKept) << handler;
        EXPECT_EQ(readAs(handler + "\\u0000"), notKept) << handler;
        EXPECT_EQ(readAs(handler.substr(1)), notKept) << handler;
        EXPECT_EQ(readAs(handler.substr(0, handler.size() - 1)), notKept) << handler;
        EXPECT_EQ(readAs(" " + handler), notKept) << handler;
    }
}

TEST(ReadHandlerEntry, AnotherHandlerIsNone) {
    for (const std::string handler : {"", "colorTexFrameHandler", "FileBrowserHandler"}) {
        EXPECT_EQ(read(R"({"handler":")" + handler + R"("})", withColor("1")), notKept) << handler;
    }
}

TEST(ReadHandlerEntry, ReadsNothingElseOfTheParameter) {
    EXPECT_EQ(read(R"({"handler":"FloatTexFrameHandler","type":1,"scaling":1,"defaultValue":1})",
                   withFloat("2")),
              kept("float", "float 2.f"));
}

TEST(ReadHandlerEntry, AColorHasItsDefaultFromItsUserData) {
    EXPECT_EQ(readColor(withColor("AColor(0.1,0.2,0.3,0.4)")),
              kept("color", "acolor 0.1f, 0.2f, 0.3f, 0.4f"));
}

TEST(ReadHandlerEntry, AColorOfThreeHasTheAlphaZero) {
    EXPECT_EQ(readColor(withColor("Color(1,0.5,0.2)")),
              kept("color", "acolor 1.f, 0.5f, 0.2f, 0.f"));
}

TEST(ReadHandlerEntry, AColorOfANumberIsGreyWithTheAlphaZero) {
    EXPECT_EQ(readColor(withColor("2")), kept("color", "acolor 2.f, 2.f, 2.f, 0.f"));
    EXPECT_EQ(readColor(withColor(" 0.5x")), kept("color", "acolor 0.5f, 0.5f, 0.5f, 0.f"));
}

TEST(ReadHandlerEntry, AColorIsReadByItsFieldsWhateverItsWord) {
    EXPECT_EQ(readColor(withColor("X( 1, y,3)")), kept("color", "acolor 1.f, 0.f, 3.f, 0.f"));
    EXPECT_EQ(readColor(withColor("1,2,3,4,5,6")), kept("color", "acolor 2.f, 3.f, 4.f, 5.f"));
}

TEST(ReadHandlerEntry, AColorThatIsNothingIsAnError) {
    const auto error = [](const std::string& text) {
        return messageOf<std::invalid_argument>([&text] { readColor(withColor(text)); });
    };
    EXPECT_EQ(error("abc"), "invalid stof argument");
    EXPECT_EQ(error(""), "invalid stof argument");
    EXPECT_EQ(error("Color(1,2)"), "invalid stof argument");
}

TEST(ReadHandlerEntry, AFloatHasItsDefaultFromItsUserData) {
    EXPECT_EQ(readFloat(withFloat("0.25")), kept("float", "float 0.25f"));
    EXPECT_EQ(readFloat(withFloat(" -3e0abc")), kept("float", "float -3.f"));
}

TEST(ReadHandlerEntry, AFloatThatIsNoNumberIsAnError) {
    EXPECT_EQ(messageOf<std::invalid_argument>([] { readFloat(withFloat("Float(1)")); }),
              "invalid stof argument");
    EXPECT_EQ(messageOf<std::out_of_range>([] { readFloat(withFloat("1e39")); }),
              "stof argument out of range");
}

TEST(ReadHandlerEntry, ATextureFrameTakesAllItsUserData) {
    const std::string value = R"("p_color":{"defaultValue":"1"},"p_float":{"defaultValue":"1"})";
    for (const std::string lacking : {R"("p_tex_on":0,"p_tex_mult":0)",
                                      R"("p_tex":0,"p_tex_mult":0)", R"("p_tex":0,"p_tex_on":0)"}) {
        EXPECT_EQ(readColor("{" + lacking + "," + value + "}"), notKept) << lacking;
        EXPECT_EQ(readFloat("{" + lacking + "," + value + "}"), notKept) << lacking;
    }
}

TEST(ReadHandlerEntry, UserDataOfOtherParametersDoNotCount) {
    EXPECT_EQ(readColor(R"({"q_tex":0,"q_tex_on":0,"q_tex_mult":0,"q_color":{}})"), notKept);
}

TEST(ReadHandlerEntry, AColorDoesNotFallBackToTheFloat) {
    EXPECT_EQ(readColor(withFloat("1")), notKept);
}

TEST(ReadHandlerEntry, AFloatDoesNotFallBackToTheColor) {
    EXPECT_EQ(readFloat(withColor("1")), notKept);
}

TEST(ReadHandlerEntry, AnIncompleteFrameHidesABadDefault) {
    EXPECT_EQ(readColor(R"({"p_tex":0,"p_tex_on":0,"p_color":1})"), notKept);
}

TEST(ReadHandlerEntry, TheValueHasToBeAnObjectWithADefaultText) {
    for (const std::string suffix : {"color", "float"}) {
        const std::string handler = suffix == "color" ? "Color" : "Float";
        const auto readValue = [&](const std::string& value) {
            read(R"({"handler":")" + handler + R"(TexFrameHandler"})",
                 "{" + frame + R"(,"p_)" + suffix + R"(":)" + value + "}");
        };
        EXPECT_EQ(messageOf<std::runtime_error>([&] { readValue("1"); }), notAnObject);
        EXPECT_EQ(messageOf<std::out_of_range>([&] { readValue("{}"); }), "invalid map<K, T> key");
        EXPECT_EQ(messageOf<std::runtime_error>([&] { readValue(R"({"defaultValue":1})"); }),
                  notAString);
    }
}

TEST(ReadHandlerEntry, ADuplicateTakesBothItsUserData) {
    const std::string duplicate = R"({"handler":"DuplicateHandler"})";
    EXPECT_EQ(read(duplicate, R"({"p_duplicate":0,"p_duplicate_output":0})"),
              kept("duplicate", "none"));
    EXPECT_EQ(read(duplicate, R"({"p_duplicate":0})"), notKept);
    EXPECT_EQ(read(duplicate, R"({"p_duplicate_output":0})"), notKept);
}

TEST(ReadHandlerEntry, TheHandlerHasToBeAText) {
    EXPECT_EQ(messageOf<std::runtime_error>([] { read(R"({"handler":1})", "{}"); }), notAString);
}

}  // namespace
}  // namespace metagen

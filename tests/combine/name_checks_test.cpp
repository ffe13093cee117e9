#include "combine/checks.h"

#include <gtest/gtest.h>

#include <string>

#include "json/document.h"
#include "support/exit_status.h"
#include "support/message_of.h"

namespace metagen {
namespace {

using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStdout;

/// What the clash check prints of these plugins, after its answer.
std::string clashesOf(const std::string& plugins) {
    CaptureStdout();
    const bool found = reportNameClashes(json::asObject(json::Document(plugins).root()));
    return (found ? "found\n" : "none\n") + GetCapturedStdout();
}

/// What the default value check prints of these plugins.
std::string defaultsOf(const std::string& plugins) {
    CaptureStdout();
    reportUnexpectedDefaults(json::asObject(json::Document(plugins).root()));
    return GetCapturedStdout();
}

/// The text of the error with which the default value check gives up; empty when it does not.
std::string defaultsMessage(const std::string& plugins) {
    const std::string message = messageOf([&] { defaultsOf(plugins); });
    EXPECT_EQ(GetCapturedStdout(), "");
    return message;
}

void check(const std::string& document) {
    checkNamesAndDefaults(json::asObject(json::Document(document).root()));
}

TEST(ReportNameClashes, FindsNoneInAnEmptyDocument) { EXPECT_EQ(clashesOf("{}"), "none\n"); }

TEST(ReportNameClashes, SkipsPluginsWithoutBothMembers) {
    EXPECT_EQ(clashesOf(R"({"A":{"params":{"x":1}},"B":{"userData":{"x":1}},"C":{}})"), "none\n");
}

TEST(ReportNameClashes, SkipsWhatIsNoPlugin) {
    EXPECT_EQ(clashesOf(R"({"A":null,"B":[],"C":"text"})"), "none\n");
}

TEST(ReportNameClashes, FindsNoneWhereNamesDiffer) {
    EXPECT_EQ(clashesOf(R"({"A":{"params":{"x":1,"z":1},"userData":{"X":1,"y":1,"zz":1}}})"),
              "none\n");
}

TEST(ReportNameClashes, ListsTheNamesOfAPluginInOneLine) {
    EXPECT_EQ(clashesOf(R"({"A":{"params":{"x":1,"b":1,"C":1,"a":1},
                                 "userData":{"x":1,"b":1,"C":1,"y":1}}})"),
              "found\nA has duplicated named param and userdata - C b x \n");
}

TEST(ReportNameClashes, GivesEachPluginALine) {
    EXPECT_EQ(clashesOf(R"({"b":{"params":{"x":1},"userData":{"x":1}},
                            "A":{"params":{"y":1},"userData":{"y":1}},"a":{}})"),
              "found\n"
              "A has duplicated named param and userdata - y \n"
              "b has duplicated named param and userdata - x \n");
}

TEST(ReportNameClashes, ThrowsForMembersThatAreNoObjects) {
    EXPECT_EQ(messageOf([] { clashesOf(R"({"A":{"params":[],"userData":{}}})"); }),
              noObjectMessage);
    GetCapturedStdout();
    EXPECT_EQ(messageOf([] { clashesOf(R"({"A":{"params":{},"userData":1}})"); }), noObjectMessage);
    GetCapturedStdout();
}

TEST(ReportUnexpectedDefaults, PrintsNothingOfAnEmptyDocument) { EXPECT_EQ(defaultsOf("{}"), ""); }

TEST(ReportUnexpectedDefaults, LetsEntriesWithATypeOrADefaultPass) {
    EXPECT_EQ(defaultsOf(R"({"A":{"params":{
                  "a":{"type":"float","defaultValue":"no number","listType":"float"},
                  "b":{"type":"float","listType":"float"},
                  "c":{"defaultValue":"no number","listType":"float"}}}})"),
              "");
}

TEST(ReportUnexpectedDefaults, LetsEntriesWithoutAListTypePass) {
    EXPECT_EQ(defaultsOf(R"({"A":{"params":{"a":{},"b":{"handler":"H"}}}})"), "");
}

TEST(ReportUnexpectedDefaults, NamesEntriesWhoseListTypeHasAReader) {
    EXPECT_EQ(defaultsOf(R"({"A":{"params":{"p":{"listType":"float"},"q":{"listType":"color"}},
                                  "userData":{"u":{"listType":"acolor texture"}}},
                             "B":{"userData":{"v":{"listType":"bool"}}}})"),
              "A::p : Unexpected defautValue format for type  = \n"
              "A::q : Unexpected defautValue format for type  = \n"
              "A::u : Unexpected defautValue format for type  = \n"
              "B::v : Unexpected defautValue format for type  = \n");
}

TEST(ReportUnexpectedDefaults, LetsListTypesWithoutAReaderPass) {
    for (const char* type : {"string", "double", "list", "none", "Float", "integer texture",
                             "vector texture", "matrix texture", "transform texture", ""}) {
        EXPECT_EQ(defaultsOf(R"({"A":{"params":{"p":{"listType":")" + std::string(type) + "\"}}}}"),
                  "")
            << type;
    }
}

TEST(ReportUnexpectedDefaults, SkipsOtherMembersOfAPlugin) {
    EXPECT_EQ(defaultsOf(R"({"A":{"type":"light","more":{"p":{"listType":"float"}}}})"), "");
}

TEST(ReportUnexpectedDefaults, ThrowsForWhatIsNoObject) {
    EXPECT_EQ(defaultsMessage(R"({"A":null})"), noObjectMessage);
    EXPECT_EQ(defaultsMessage(R"({"A":{"params":[]}})"), noObjectMessage);
    EXPECT_EQ(defaultsMessage(R"({"A":{"userData":"text"}})"), noObjectMessage);
    EXPECT_EQ(defaultsMessage(R"({"A":{"params":{"p":1}}})"), noObjectMessage);
    EXPECT_EQ(defaultsMessage(R"({"A":{"userData":{"u":null}}})"), noObjectMessage);
}

TEST(ReportUnexpectedDefaults, ThrowsForMembersOfAnEntryThatAreNoTexts) {
    EXPECT_EQ(defaultsMessage(R"({"A":{"params":{"p":{"type":1}}}})"), noTextMessage);
    EXPECT_EQ(defaultsMessage(R"({"A":{"params":{"p":{"type":"float","defaultValue":1}}}})"),
              noTextMessage);
    EXPECT_EQ(defaultsMessage(R"({"A":{"userData":{"u":{"type":"list","listType":null}}}})"),
              noTextMessage);
    // Whatever comes before it in the order of the members, each is looked at.
    EXPECT_EQ(defaultsMessage(R"({"A":{"params":{"p":{"defaultValue":"1","listType":1}}}})"),
              noTextMessage);
    EXPECT_EQ(defaultsMessage(R"({"A":{"params":{"p":{"defaultValue":"1","type":1}}}})"),
              noTextMessage);
    EXPECT_EQ(defaultsMessage(R"({"A":{"params":{"p":{"listType":"string","type":1}}}})"),
              noTextMessage);
}

TEST(CheckNamesAndDefaults, PassesADocumentWithoutPlugins) {
    CaptureStdout();
    check(R"({"plugins":{}})");
    EXPECT_EQ(GetCapturedStdout(), "");
}

TEST(CheckNamesAndDefaults, ThrowsWhenPluginsAreMissingOrNoObject) {
    EXPECT_EQ(messageOf([] { check("{}"); }), "invalid map<K, T> key");
    EXPECT_EQ(messageOf([] { check(R"({"plugins":[]})"); }), noObjectMessage);
}

TEST(CheckNamesAndDefaults, AnErrorInTheDefaultsWinsOverAClash) {
    CaptureStdout();
    const std::string message = messageOf(
        [] { check(R"({"plugins":{"A":{"params":{"x":{}},"userData":{"x":{}}},"B":1}})"); });
    EXPECT_EQ(GetCapturedStdout(), "A has duplicated named param and userdata - x \n");
    EXPECT_EQ(message, noObjectMessage);
}

TEST(CheckNamesAndDefaultsDeathTest, AClashEndsTheRunAfterBothChecks) {
    const auto checkClash = [] {
        showOutputAtExit();
        check(R"({"plugins":{"A":{"params":{"x":{"listType":"float"}},"userData":{"x":{}}}}})");
    };
    EXPECT_EXIT(checkClash(), isBrokenMetadata,
                "^A has duplicated named param and userdata - x \n"
                "A::x : Unexpected defautValue format for type  = \n$");
}

}  // namespace
}  // namespace metagen

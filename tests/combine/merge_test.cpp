#include "combine/merge.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "json/document.h"
#include "support/message_of.h"

namespace metagen {
namespace {

/// What a merge leaves: the document, and every entry of the report in the order of the lists, each
/// behind the name of its list.
struct Outcome {
    std::string document;
    std::vector<std::string> entries;

    bool operator==(const Outcome&) const = default;

    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
        out << outcome.document;
        for (const std::string& entry : outcome.entries) out << '\n' << entry;
        return out;
    }
};

Outcome merged(const std::string& stripped, const std::string& live) {
    const json::Document strippedDocument(stripped);
    const json::Document liveDocument(live);
    Arena arena;
    CombineReport report;
    const json::Object document = merge(json::asObject(strippedDocument.root()),
                                        json::asObject(liveDocument.root()), arena, report);
    Outcome outcome = {.document = json::compactText(json::Value(document)), .entries = {}};
    const auto add = [&outcome](const char* list, const std::vector<std::string>& entries) {
        for (const std::string& entry : entries) outcome.entries.push_back(list + entry);
    };
    add("plugin type: ", report.changedPluginTypes);
    add("parameter type: ", report.changedParameterTypes);
    add("default: ", report.overriddenDefaults);
    add("failure: ", report.handlerCheckFailures);
    add("deprecation: ", report.deprecations);
    add("duplication: ", report.duplications);
    return outcome;
}

std::string mergeMessage(const std::string& stripped, const std::string& live) {
    return messageOf([&] { merged(stripped, live); });
}

/// A document of one plugin P with these members.
std::string plugin(const std::string& members) { return R"({"plugins":{"P":{)" + members + "}}}"; }

/// A document of one plugin P with one parameter q with these members.
std::string parameter(const std::string& members) {
    return plugin(R"("params":{"q":{)" + members + "}}");
}

TEST(Merge, OfAnEmptyDocumentChangesNothing) {
    const std::string live = parameter(R"("defaultValue":"1","type":"float")");
    EXPECT_EQ(merged("{}", live), (Outcome{live, {}}));
    EXPECT_EQ(merged(R"({"plugins":{"P":{"params":{"q":{}}}}})", live), (Outcome{live, {}}));
}

TEST(Merge, ReplacesALeafAndRecordsTypeAndDefaultOnly) {
    EXPECT_EQ(
        merged(parameter(R"("type":"color","defaultValue":"2","gpu":[1])"),
               parameter(R"("type":"float","defaultValue":"1","gpu":true)")),
        (Outcome{parameter(R"("defaultValue":"2","gpu":[1],"type":"color")"),
                 {R"(parameter type: P::q  "float" -> "color")", R"(default: P::q  "1" -> "2")"}}));
}

TEST(Merge, RecordsEqualLeavesAsDuplications) {
    const std::string document = parameter(R"("defaultValue":"1","type":"float")");
    EXPECT_EQ(merged(document, document), (Outcome{document,
                                                   {R"(duplication: P::q::defaultValue::"1")",
                                                    R"(duplication: P::q::type::"float")"}}));
}

TEST(Merge, RecordsDuplicationsOfAnyKey) {
    const std::string document = parameter(R"("handler":["a/b",1,{}])");
    EXPECT_EQ(merged(document, document),
              (Outcome{parameter(R"("handler":["a\/b",1,{}])"),
                       {R"(duplication: P::q::handler::["a\/b",1,{}])"}}));
}

TEST(Merge, ComparesLeavesByTheirTexts) {
    EXPECT_EQ(merged(R"({"a":1.0,"b":-0.0})", R"({"a":1,"b":0})"),
              (Outcome{R"({"a":1,"b":-0})", {"duplication: ::::a::1"}}));
}

TEST(Merge, AddsALeafThatTheLiveSideLacks) {
    EXPECT_EQ(
        merged(parameter(R"("handler":"H","defaultValue":"2")"), parameter(R"("type":"float")")),
        (Outcome{parameter(R"("defaultValue":"2","handler":"H","type":"float")"),
                 {R"(default: P::q   -> "2")"}}));
}

TEST(Merge, AddsAKeyOfAnyDepth) {
    EXPECT_EQ(merged(R"({"version":3,"plugins":{"P":{"note":{"a":{}}}}})", plugin("")),
              (Outcome{R"({"plugins":{"P":{"note":{"a":{}}}},"version":3})", {}}));
}

TEST(Merge, AddsAPluginAndRecordsItsTypeButNotItsParameters) {
    EXPECT_EQ(
        merged(plugin(R"("type":"light","params":{"q":{"type":"float","defaultValue":"1"}})"),
               R"({"plugins":{}})"),
        (Outcome{plugin(R"("params":{"q":{"defaultValue":"1","type":"float"}},"type":"light")"),
                 {R"(plugin type: P   -> "light")"}}));
}

TEST(Merge, AddsAPluginWithoutATypeSilently) {
    EXPECT_EQ(merged(plugin(R"("params":{})"), R"({"plugins":{}})"),
              (Outcome{plugin(R"("params":{})"), {}}));
}

TEST(Merge, AddsAParameterAndRecordsItsTypeAndDefault) {
    EXPECT_EQ(merged(parameter(R"("defaultValue":"1","type":"float")"), plugin(R"("params":{})")),
              (Outcome{parameter(R"("defaultValue":"1","type":"float")"),
                       {R"(parameter type: P::q   -> "float")", R"(default: P::q   -> "1")"}}));
}

TEST(Merge, RecordsOnlyTheKeysOfAnAddedObjectItself) {
    EXPECT_EQ(merged(plugin(R"("userData":{"u":{"type":"float"},"type":{"a":1}})"), plugin("")),
              (Outcome{plugin(R"("userData":{"type":{"a":1},"u":{"type":"float"}})"),
                       {R"(plugin type: P   -> {"a":1})"}}));
}

TEST(Merge, RecordsATypeAtTheTopWithoutAPlugin) {
    EXPECT_EQ(merged(R"({"type":"x"})", R"({"type":"y"})"),
              (Outcome{R"({"type":"x"})", {R"(plugin type:   "y" -> "x")"}}));
}

TEST(Merge, RecordsADefaultOfAPluginUnderItsLastParameter) {
    EXPECT_EQ(merged(plugin(R"("defaultValue":"2")"), plugin(R"("defaultValue":"1")")),
              (Outcome{plugin(R"("defaultValue":"2")"), {R"(default: P::  "1" -> "2")"}}));
    EXPECT_EQ(merged(R"({"plugins":{"P":{"a":{"b":{}},"defaultValue":"2"}}})",
                     R"({"plugins":{"P":{"a":{"b":{}}}}})"),
              (Outcome{R"({"plugins":{"P":{"a":{"b":{}},"defaultValue":"2"}}})",
                       {R"(default: P::b   -> "2")"}}));
}

TEST(Merge, TakesOutAPluginGivenAsNull) {
    EXPECT_EQ(merged(R"({"plugins":{"P":null}})", R"({"plugins":{"P":{},"Q":{}}})"),
              (Outcome{R"({"plugins":{"Q":{}}})", {"deprecation: P::"}}));
}

TEST(Merge, TakesOutAParameterGivenAsNull) {
    EXPECT_EQ(merged(plugin(R"("params":{"q":null})"), plugin(R"("params":{"p":{},"q":{}})")),
              (Outcome{plugin(R"("params":{"p":{}})"), {"deprecation: P::q"}}));
}

TEST(Merge, IgnoresANullThatTheLiveSideLacks) {
    EXPECT_EQ(
        merged(R"({"plugins":{"Q":null,"P":{"params":{"p":null}}}})", plugin(R"("params":{})")),
        (Outcome{plugin(R"("params":{})"), {}}));
}

TEST(Merge, TakesANullElsewhereAsAValue) {
    EXPECT_EQ(merged(R"({"a":null,"plugins":{"P":{"type":null,"params":{"q":{"b":null}}}}})",
                     R"({"a":1,"plugins":{"P":{"type":"light","params":{"q":{"b":2}}}}})"),
              (Outcome{R"({"a":null,"plugins":{"P":{"params":{"q":{"b":null}},"type":null}}})",
                       {R"(plugin type: P  "light" -> null)"}}));
}

TEST(Merge, KeepsTheNullsOfAnAddedObject) {
    EXPECT_EQ(merged(R"({"plugins":{"P":{"params":{"q":null}}}})", "{}"),
              (Outcome{R"({"plugins":{"P":{"params":{"q":null}}}})", {}}));
}

TEST(Merge, NamesTheLastParameterInADuplicationThatFollowsTheParameters) {
    EXPECT_EQ(merged(plugin(R"("params":{"a":{},"z":{}},"type":"light")"),
                     plugin(R"("params":{"a":{},"z":{}},"type":"light")")),
              (Outcome{plugin(R"("params":{"a":{},"z":{}},"type":"light")"),
                       {R"(duplication: P::z::type::"light")"}}));
}

TEST(Merge, NamesNoParameterBeforeTheFirst) {
    EXPECT_EQ(merged(R"({"plugins":{"A":{"params":{"q":{}}},"P":{"kind":1,"params":{}}}})",
                     R"({"plugins":{"A":{"params":{"q":{}}},"P":{"kind":1,"params":{}}}})"),
              (Outcome{R"({"plugins":{"A":{"params":{"q":{}}},"P":{"kind":1,"params":{}}}})",
                       {"duplication: P::::kind::1"}}));
}

TEST(Merge, TakesKeysBelowParametersAsTheParameters) {
    EXPECT_EQ(merged(parameter(R"("scaling":{"type":1,"defaultValue":2})"),
                     parameter(R"("scaling":{"type":0,"defaultValue":0})")),
              (Outcome{parameter(R"("scaling":{"defaultValue":2,"type":1})"),
                       {"parameter type: P::q  0 -> 1", "default: P::q  0 -> 2"}}));
}

TEST(Merge, KeepsTheOrderInWhichItDeprecates) {
    // The order of the stripped names, in which capitals come first.
    EXPECT_EQ(merged(R"({"plugins":{"b":null,"a":{"params":{"z":null,"Y":null}},"C":null}})",
                     R"({"plugins":{"a":{"params":{"Y":{},"z":{}}},"b":{},"C":{}}})"),
              (Outcome{R"({"plugins":{"a":{"params":{}}}})",
                       {"deprecation: C::", "deprecation: a::Y", "deprecation: a::z",
                        "deprecation: b::"}}));
}

TEST(Merge, RecordsNothingForKeysNamedLikeRecords) {
    EXPECT_EQ(merged(parameter(R"("deprecated":1,"duplicated":2)"), parameter("")),
              (Outcome{parameter(R"("deprecated":1,"duplicated":2)"), {}}));
}

TEST(Merge, RefusesAnObjectOverALeaf) {
    EXPECT_EQ(mergeMessage(parameter(R"("type":{"a":1})"), parameter(R"("type":"float")")),
              noObjectMessage);
    EXPECT_EQ(mergeMessage(R"({"plugins":{}})", R"({"plugins":[]})"), noObjectMessage);
}

TEST(Merge, RefusesAnEmptyObjectOverALeaf) {
    EXPECT_EQ(mergeMessage(parameter(R"("type":{})"), parameter(R"("type":"float")")),
              noObjectMessage);
}

TEST(Merge, ReplacesAnObjectByALeaf) {
    EXPECT_EQ(merged(R"({"plugins":{"P":7}})", plugin(R"("type":"light")")),
              (Outcome{R"({"plugins":{"P":7}})", {}}));
}

/// The object that is the value of a member.
json::Object objectAt(json::Object object, const char* key) {
    return json::asObject(json::at(object, key));
}

TEST(Merge, SharesWhatOnlyOneDocumentSaysAndChangesNeither) {
    const json::Document stripped(
        R"({"plugins":{"New":{"a":[1]},"P":{"type":"color"},"Out":null}})");
    const json::Document live(
        R"({"plugins":{"Kept":{"b":{}},"Out":{},"P":{"q":{},"type":"float"}}})");
    const std::string strippedText = json::compactText(stripped.root());
    const std::string liveText = json::compactText(live.root());
    Arena arena;
    CombineReport report;
    const json::Object plugins =
        objectAt(merge(json::asObject(stripped.root()), json::asObject(live.root()), arena, report),
                 "plugins");
    EXPECT_EQ(json::compactText(json::Value(plugins)),
              R"({"Kept":{"b":{}},"New":{"a":[1]},"P":{"q":{},"type":"color"}})");
    const json::Object strippedPlugins = objectAt(json::asObject(stripped.root()), "plugins");
    const json::Object livePlugins = objectAt(json::asObject(live.root()), "plugins");
    EXPECT_EQ(objectAt(plugins, "Kept").data(), objectAt(livePlugins, "Kept").data());
    EXPECT_EQ(objectAt(plugins, "New").data(), objectAt(strippedPlugins, "New").data());
    EXPECT_EQ(json::compactText(stripped.root()), strippedText);
    EXPECT_EQ(json::compactText(live.root()), liveText);
}

}  // namespace
}  // namespace metagen

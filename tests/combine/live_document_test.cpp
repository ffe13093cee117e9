// The live document is made without the base document's text, and says the same.
#include "combine/live_document.h"

#include <gtest/gtest.h>

#include "metadata/base_document.h"
#include "support/exit_status.h"

namespace metagen {
namespace {

NamedParameter parameter(const char* name, const char* text) {
    return {.name = name,
            .record = {.code = 9, .defaultValue = {.tag = 9, .payload = std::string(text)}}};
}

using Plugins = std::vector<std::pair<std::string, PluginRecord>>;

/// The live document of these classes, for a stripped document.
LiveDocument liveDocument(const Plugins& plugins, const char* stripped) {
    const json::Value strippedDocument = json::parse(stripped).value();
    LiveDocumentBuilder builder{NamedPlugins(strippedDocument)};
    for (const auto& [name, plugin] : plugins) builder.add(name, plugin);
    EXPECT_TRUE(builder.isFaithful());
    return builder.take();
}

/// No object, so that all plugins are wanted as trees.
constexpr const char* namesAll = R"({"plugins":0})";
constexpr const char* namesNone = "{}";

std::string treeOf(const Plugins& plugins) {
    const LiveDocument document = liveDocument(plugins, namesAll);
    EXPECT_TRUE(document.otherPlugins.empty());
    return json::compactText(document.tree);
}

/// The combined document that nothing is merged into.
std::string combinedText(const Plugins& plugins, const char* stripped) {
    const LiveDocument document = liveDocument(plugins, stripped);
    return CombinedDocument(json::asObject(document.tree), document.otherPlugins).text();
}

LiveDocumentBuilder builderOfTrees() {
    static const json::Value stripped = json::parse(namesAll).value();
    return LiveDocumentBuilder(NamedPlugins(stripped));
}

/// What the parser makes of the base document.
std::string parsedTextOf(const Plugins& plugins) {
    BaseDocument document;
    for (const auto& [name, plugin] : plugins) document.add(name, plugin);
    return json::compactText(json::parse(document.text()).value());
}

TEST(LiveDocument, OfNothing) { EXPECT_EQ(treeOf({}), R"({"plugins":{}})"); }

TEST(LiveDocument, HasTheMembersOfTheBaseDocumentInTheOrderOfATree) {
    const Plugins plugins = {
        {"b", {.category = "light", .parameters = {parameter("a", "1"), parameter("B", "2")}}},
        {"A",
         {.category = {},
          .parameters = {
              {.name = "l",
               .record = {.isList = true,
                          .code = 100,
                          .defaultValue = {.tag = 100, .payload = std::vector{1, 2}}}},
              {.name = "m",
               .record = {.isList = true, .code = 12, .defaultValue = {.tag = 12, .payload = {}}}},
              parameter("none", "none")}}}};
    constexpr const char* expected =
        R"({"plugins":{"A":{"params":{)"
        R"json("l":{"defaultValue":"IntList(1, 2)","listType":"integer","type":"list"},)json"
        R"("m":{"listType":"list","type":"list"},"none":{"type":"string"}},"type":null},)"
        R"("b":{"params":{"B":{"defaultValue":"2","type":"string"},)"
        R"("a":{"defaultValue":"1","type":"string"}},"type":"light"}}})";
    EXPECT_EQ(treeOf(plugins), expected);
    EXPECT_EQ(parsedTextOf(plugins), expected);
}

TEST(LiveDocument, DefaultTextsAreThoseThatTheParserWouldUnescape) {
    const Plugins plugins = {
        {"A", {.category = {}, .parameters = {parameter("p", "a\"\\/\n\x01\x7f\xc3\xa4\xff")}}}};
    constexpr const char* expected =
        "{\"plugins\":{\"A\":{\"params\":{\"p\":{\"defaultValue\":"
        "\"a\\\"\\\\\\/\\n\\u0001\\u007f\xc3\xa4\xff\",\"type\":\"string\"}},\"type\":null}}}";
    EXPECT_EQ(treeOf(plugins), expected);
    EXPECT_EQ(parsedTextOf(plugins), expected);
}

TEST(LiveDocument, KeepsTheFirstOfEqualClasses) {
    EXPECT_EQ(treeOf({{"a_b", {.category = "light", .parameters = {}}},
                      {"A.B", {.category = "BRDF", .parameters = {}}}}),
              R"({"plugins":{"a_b":{"params":{},"type":"light"}}})");
}

TEST(LiveDocument, HasOnlyTheNamedPluginsAsTrees) {
    const Plugins plugins = {
        {"b", {.category = "light", .parameters = {parameter("p", "1")}}},
        {"a", {.category = {}, .parameters = {}}},
        {"c",
         {.category = "BRDF",
          .parameters = {{.name = "l",
                          .record = {.isList = true,
                                     .code = 100,
                                     .defaultValue = {.tag = 100, .payload = std::vector{1, 2}}}},
                         parameter("none", "none"),
                         parameter("s", "a/\"\n\x7f\xc3\xa4")}}}};
    const LiveDocument document =
        liveDocument(plugins, R"({"c":{},"plugins":{"b":null,"B":{},"x":{}}})");
    EXPECT_EQ(json::compactText(document.tree),
              R"({"plugins":{"b":{"params":{"p":{"defaultValue":"1","type":"string"}},)"
              R"("type":"light"}}})");
    const PluginTexts others = {
        {"a", R"({"type":null,"params":{}})"},
        {"c", R"({"type":"BRDF","params":{)"
              R"json("l":{"type":"list","defaultValue":"IntList(1, 2)","listType":"integer"},)json"
              R"("none":{"type":"string"},)"
              R"("s":{"type":"string","defaultValue":"a\/\"\n\u007f)"
              "\xc3\xa4\"}}}"}};
    EXPECT_EQ(document.otherPlugins, others);
    // The same in the end, however many of them are trees.
    const std::string combined = combinedText(plugins, namesNone);
    EXPECT_EQ(combined, combinedText(plugins, namesAll));
    EXPECT_EQ(combined, combinedText(plugins, R"({"plugins":{"b":{}}})"));
    EXPECT_EQ(combined, R"({"plugins":{"a":)" + others.at("a") +
                            R"(,"b":{"type":"light","params":{"p":{"type":"string",)"
                            R"("defaultValue":"1"}}},"c":)" +
                            others.at("c") + "}}");
}

TEST(LiveDocument, KeepsTheFirstOfEqualClassesWhicheverIsNamed) {
    const Plugins plugins = {{"a_b", {.category = "light", .parameters = {}}},
                             {"A.B", {.category = "BRDF", .parameters = {}}}};
    constexpr const char* expected = R"({"plugins":{"a_b":{"type":"light","params":{}}}})";
    EXPECT_EQ(combinedText(plugins, namesNone), expected);
    EXPECT_EQ(combinedText(plugins, R"({"plugins":{"a_b":{}}})"), expected);
    EXPECT_EQ(combinedText(plugins, R"({"plugins":{"A.B":{}}})"), expected);
}

TEST(NamedPlugins, AreThoseOfTheObject) {
    const json::Value stripped = json::parse(R"({"plugins":{"a":null,"b":1},"c":{}})").value();
    const NamedPlugins named(stripped);
    EXPECT_TRUE(named.contains("a"));
    EXPECT_TRUE(named.contains("b"));
    EXPECT_FALSE(named.contains("c"));
    EXPECT_FALSE(named.contains("A"));
}

TEST(NamedPlugins, AreAllWhereTheObjectIsSomethingElseAndNoneWithoutIt) {
    for (const char* text : {R"({"plugins":null})", R"({"plugins":[{"b":1}]})"}) {
        const json::Value stripped = json::parse(text).value();
        EXPECT_TRUE(NamedPlugins(stripped).contains("a")) << text;
    }
    for (const char* text : {"{}", R"({"Plugins":{"a":1}})", "[]", "7"}) {
        const json::Value stripped = json::parse(text).value();
        EXPECT_FALSE(NamedPlugins(stripped).contains("a")) << text;
    }
}

TEST(LiveDocument, IsNotFaithfulWhenANameNeedsEscapes) {
    for (const char* name : {"a\"b", "a\\b", "a\nb", "a\x1f"}) {
        LiveDocumentBuilder ofClass = builderOfTrees();
        ofClass.add(name, {});
        EXPECT_FALSE(ofClass.isFaithful()) << name;
        LiveDocumentBuilder ofParameter = builderOfTrees();
        ofParameter.add("A", {.category = {}, .parameters = {parameter(name, "")}});
        EXPECT_FALSE(ofParameter.isFaithful()) << name;
    }
    LiveDocumentBuilder document = builderOfTrees();
    document.add("a b/\x7f\xff", {});
    EXPECT_TRUE(document.isFaithful());
    // A class that is dropped is not in the text either.
    document.add("plain", {});
    document.add("PLAIN", {.category = {}, .parameters = {parameter("a\"b", "")}});
    EXPECT_TRUE(document.isFaithful());
}

TEST(LiveDocument, ATypeWithoutNameCountsOnlyInAClassThatIsKept) {
    LiveDocumentBuilder document = builderOfTrees();
    document.add("a", {});
    document.add("A", {.category = {},
                       .parameters = {{.name = "p", .record = {.code = 50, .defaultValue = {}}}}});
    EXPECT_EQ(json::compactText(document.take().tree),
              R"({"plugins":{"a":{"params":{},"type":null}}})");
}

TEST(LiveDocumentDeathTest, ATypeWithoutNameEndsTheProcessWhenTheTreeIsTaken) {
    LiveDocumentBuilder document = builderOfTrees();
    document.add("a", {.category = {},
                       .parameters = {{.name = "p", .record = {.code = 50, .defaultValue = {}}}}});
    EXPECT_EXIT(document.take(), isBrokenMetadata, "");
}

}  // namespace
}  // namespace metagen

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

std::string treeOf(std::vector<std::pair<std::string, PluginRecord>> plugins) {
    LiveDocument document;
    for (auto& [name, plugin] : plugins) document.add(name, std::move(plugin));
    EXPECT_TRUE(document.isFaithful());
    return json::compactText(document.take());
}

/// What the parser makes of the base document.
std::string parsedTextOf(const std::vector<std::pair<std::string, PluginRecord>>& plugins) {
    BaseDocument document;
    for (const auto& [name, plugin] : plugins) document.add(name, plugin);
    return json::compactText(json::parse(document.text()).value());
}

TEST(LiveDocument, OfNothing) { EXPECT_EQ(treeOf({}), R"({"plugins":{}})"); }

TEST(LiveDocument, HasTheMembersOfTheBaseDocumentInTheOrderOfATree) {
    const std::vector<std::pair<std::string, PluginRecord>> plugins = {
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
    const std::vector<std::pair<std::string, PluginRecord>> plugins = {
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

TEST(LiveDocument, IsNotFaithfulWhenANameNeedsEscapes) {
    for (const char* name : {"a\"b", "a\\b", "a\nb", "a\x1f"}) {
        LiveDocument ofClass;
        ofClass.add(name, {});
        EXPECT_FALSE(ofClass.isFaithful()) << name;
        LiveDocument ofParameter;
        ofParameter.add("A", {.category = {}, .parameters = {parameter(name, "")}});
        EXPECT_FALSE(ofParameter.isFaithful()) << name;
    }
    LiveDocument document;
    document.add("a b/\x7f\xff", {});
    EXPECT_TRUE(document.isFaithful());
    // A class that is dropped is not in the text either.
    document.add("plain", {});
    document.add("PLAIN", {.category = {}, .parameters = {parameter("a\"b", "")}});
    EXPECT_TRUE(document.isFaithful());
}

TEST(LiveDocument, ATypeWithoutNameCountsOnlyInAClassThatIsKept) {
    LiveDocument document;
    document.add("a", {});
    document.add("A", {.category = {},
                       .parameters = {{.name = "p", .record = {.code = 50, .defaultValue = {}}}}});
    EXPECT_EQ(json::compactText(document.take()), R"({"plugins":{"a":{"params":{},"type":null}}})");
}

TEST(LiveDocumentDeathTest, ATypeWithoutNameEndsTheProcessWhenTheTreeIsTaken) {
    LiveDocument document;
    document.add("a", {.category = {},
                       .parameters = {{.name = "p", .record = {.code = 50, .defaultValue = {}}}}});
    EXPECT_EXIT(document.take(), isBrokenMetadata, "");
}

}  // namespace
}  // namespace metagen

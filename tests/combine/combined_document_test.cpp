#include "combine/merge.h"

#include <gtest/gtest.h>

#include <string>

#include "json/document.h"

namespace metagen {
namespace {

std::string written(const std::string& text) {
    return combinedText(json::asObject(json::Document(text).root()));
}

TEST(CombinedDocument, OfAnEmptyObjectIsTwoBraces) { EXPECT_EQ(written("{}"), "{}"); }

TEST(CombinedDocument, HasNoWhiteSpace) {
    EXPECT_EQ(written("{ \"a\" : { \"b\" : [ 1 , {} ] , \"c\" : {} } }\n"),
              R"({"a":{"b":[1,{}],"c":{}}})");
}

TEST(CombinedDocument, PutsTypeFirstAtEveryLevel) {
    EXPECT_EQ(written(R"({"!":1,"type":2,"a":{".":1,"type":2,"A":{"Type":1,"type":2}}})"),
              R"({"type":2,"!":1,"a":{"type":2,".":1,"A":{"type":2,"Type":1}}})");
}

TEST(CombinedDocument, FoldsCaseAndUnderscore) {
    EXPECT_EQ(written(R"({"Zoo":1,"a_b":2,"ab":3,"a0":4,"B":5,"a":6,"a.c":7})"),
              R"({"a":6,"a_b":2,"a.c":7,"a0":4,"ab":3,"B":5,"Zoo":1})");
}

TEST(CombinedDocument, KeepsTheFirstInByteOrderOfKeysThatFoldAlike) {
    EXPECT_EQ(written(R"({"ab":1,"aB":2,"Ab":3,"a_b":4,"a.b":5})"), R"({"a.b":5,"Ab":3})");
    EXPECT_EQ(written(R"({"x":{"file_name":1,"File.Name":2,"file.name":3}})"),
              R"({"x":{"File.Name":2}})");
}

TEST(CombinedDocument, KeepsTheFirstInByteOrderOfVeryManyKeysThatFoldAlike) {
    // Every way to write "abcdef" in small and capital letters, behind a key that sorts after them.
    std::string document = R"({"Z":"last")";
    for (unsigned capitals = 0; capitals < 64; ++capitals) {
        std::string key = "abcdef";
        for (std::size_t i = 0; i < key.size(); ++i) {
            if ((capitals >> i & 1U) != 0) key[i] = static_cast<char>(key[i] - 'a' + 'A');
        }
        document += ",\"" + key + "\":\"" + key + '"';
    }
    EXPECT_EQ(written(document + "}"), R"({"ABCDEF":"ABCDEF","Z":"last"})");
}

TEST(CombinedDocument, KeepsTypeBesideKeysThatFoldToIt) {
    EXPECT_EQ(written(R"({"type":1,"TYPE":2,"tYPE":3,"a":4})"), R"({"type":1,"a":4,"TYPE":2})");
}

TEST(CombinedDocument, SortsBytesOutsideAsciiAsNegative) {
    EXPECT_EQ(written("{\"a\":1,\"\xc3\xa9\":2,\"\xe2\x82\xac\":3,\"!\":4}"),
              "{\"\xc3\xa9\":2,\"\xe2\x82\xac\":3,\"!\":4,\"a\":1}");
}

TEST(CombinedDocument, DoesNotEscapeKeys) {
    EXPECT_EQ(written(R"({"a\"b\\c\nd/":{"\u0001":1}})"), "{\"a\"b\\c\nd/\":{\"\x01\":1}}");
}

TEST(CombinedDocument, LeavesObjectsInArraysToTheLibrary) {
    EXPECT_EQ(written(R"({"a":[{"type":1,"B":2,"b":3,"a_b":4,"\"":5}]})"),
              R"({"a":[{"\"":5,"B":2,"a_b":4,"b":3,"type":1}]})");
}

TEST(CombinedDocument, WritesLeavesAsTheLibraryDoes) {
    EXPECT_EQ(written(R"({"a":"x/\"\u00e9\t","b":0.1,"c":1e2,"d":null,"e":true,"f":1e300})"),
              "{\"a\":\"x\\/\\\"\u00e9\\t\",\"b\":0.10000000000000001,\"c\":100,\"d\":null,"
              "\"e\":true,\"f\":1.0000000000000001e+300}");
}

TEST(CombinedDocument, WritesTheDeepestDocument) {
    std::string text;
    for (std::size_t i = 0; i < json::maximumDepth; ++i) text += R"({"b":)";
    text += "1";
    for (std::size_t i = 0; i < json::maximumDepth; ++i) text += R"(,"type":0})";
    std::string expected;
    for (std::size_t i = 0; i < json::maximumDepth; ++i) expected += R"({"type":0,"b":)";
    expected += "1" + std::string(json::maximumDepth, '}');
    EXPECT_EQ(written(text), expected);
}

}  // namespace
}  // namespace metagen

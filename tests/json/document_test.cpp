#include "json/document.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace metagen::json {
namespace {

std::string reserialised(std::string text) {
    const Document document(std::move(text));
    return document.isValid() ? compactText(document.root()) : "refused";
}

std::string nested(std::size_t depth, const std::string& open, const std::string& close) {
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) text += open;
    text += "1";
    for (std::size_t i = 0; i < depth; ++i) text += close;
    return text;
}

TEST(Document, ReadsEveryKindOfValue) {
    EXPECT_EQ(reserialised(R"( {"o":{},"a":[1,-2.5,"t"],"b":true,"n":null} )"),
              R"({"a":[1,-2.5,"t"],"b":true,"n":null,"o":{}})");
}

TEST(Document, IgnoresTextAfterTheValue) { EXPECT_EQ(reserialised("{} x"), "{}"); }

TEST(Document, KeepsEveryByteOfAText) {
    EXPECT_EQ(reserialised(R"(["a\u0000b"])"), R"(["a\u0000b"])");
    EXPECT_EQ(reserialised("\" \x7f\""), "\" \\u007f\"");
}

TEST(Document, KeepsTheLastOfEqualMembers) {
    EXPECT_EQ(reserialised(R"({"a":1,"a":2})"), R"({"a":2})");
}

TEST(Document, PutsMembersInByteOrder) {
    EXPECT_EQ(reserialised(R"({"b":1,"a":2,"\u00e4":3,"B":4,"":5,"b":6,"ab":7})"),
              "{\"\":5,\"B\":4,\"a\":2,\"ab\":7,\"b\":6,\"\xc3\xa4\":3}");
}

TEST(Document, TakesFourBytesAsBlanks) {
    EXPECT_EQ(reserialised(" \t\r\n{\r\"a\"\r:\r[\r1\r,\r2\r]\r}"), R"({"a":[1,2]})");
}

TEST(Document, RefusesAByteOrderMark) { EXPECT_EQ(reserialised("\xef\xbb\xbf{}"), "refused"); }

TEST(Document, ReadsAKeyByWhatItsEscapesMean) {
    EXPECT_EQ(reserialised(R"({"x\u0041":1,"xA":2,"\n":3})"), R"({"\n":3,"xA":2})");
}

TEST(Document, RefusesBrokenText) {
    for (const char* text : {"", "   ", "{", "[1,]", "{\"a\" 1}", "nul", "\"a", "'a'", "-", "+1",
                             "\f{}", "[\v1]", "\"\x1f\""}) {
        EXPECT_EQ(reserialised(text), "refused") << text;
    }
}

int lineOfError(std::string text) {
    const Document document(std::move(text));
    EXPECT_FALSE(document.isValid());
    EXPECT_TRUE(document.root().isNull());
    return document.errorLine();
}

std::string read(const std::string& text) { return text.substr(0, Document(text).sizeRead()); }

TEST(Document, TellsHowFarItCouldRead) {
    EXPECT_EQ(read("{\"a\": 1,\n\"b\": ?}"), "{\"a\": 1,\n\"b\": ");
    EXPECT_EQ(read("{\"a\": 1 \"b\": 2}"), "{\"a\": 1 ");
    EXPECT_EQ(read("{\"a\": 1"), "{\"a\": 1");
    EXPECT_EQ(read("{\"a\": 1} x"), "{\"a\": 1}");
}

/// The repeated keys, each with the offsets of both, by the earlier one.
std::string repeatedIn(std::string text) {
    const Document document(std::move(text));
    std::map<std::uint32_t, std::string> found;
    for (const auto& [earlier, later] : document.repeatedKeys()) {
        found[document.offsetOf(earlier)] =
            std::string(later) + '@' + std::to_string(document.offsetOf(later));
    }
    std::string written;
    for (const auto& [offset, later] : found) written += std::to_string(offset) + ' ' + later + ' ';
    return written;
}

TEST(Document, TellsTheKeysThatAreRepeated) {
    EXPECT_EQ(repeatedIn(R"({"a":1,"b":{"a":2}})"), "");
    EXPECT_EQ(repeatedIn(R"({"a":1,"b":2,"a":3})"), "1 a@13 ");
    EXPECT_EQ(repeatedIn(R"({"b":1,"a":2,"a":3,"\u0061":4})"), "7 a@13 13 a@19 ");
    EXPECT_EQ(repeatedIn(R"([{"b":{"a":1,"a":2}}])"), "7 a@13 ");
}

TEST(Document, TellsTheLineOfAnError) {
    EXPECT_EQ(lineOfError("{"), 1);
    EXPECT_EQ(lineOfError("{\n\"a\": 1,\n\"b\": ?\n}\n"), 3);
    EXPECT_EQ(lineOfError("[1,\n1e309,\n2]\n"), 2);
    EXPECT_EQ(lineOfError("{\n\"a\nb\": 1}"), 2);  // the line break itself is the error
}

TEST(Document, RefusesNumbersBeyondADouble) {
    EXPECT_EQ(reserialised("[1e309]"), "refused");
    EXPECT_EQ(reserialised("-1e309"), "refused");
    EXPECT_EQ(reserialised("1e308"), "1e+308");
}

TEST(Document, ObjectsNestAThousandDeepAndNoDeeper) {
    EXPECT_NE(reserialised(nested(1000, "{\"a\":", "}")), "refused");
    EXPECT_EQ(reserialised(nested(1001, "{\"a\":", "}")), "refused");
}

TEST(Document, ArraysNestAHundredDeepAsTheLibraryHasIt) {
    EXPECT_NE(reserialised(nested(100, "[", "]")), "refused");
    EXPECT_EQ(reserialised(nested(101, "[", "]")), "refused");
    // Within the deepest array the library takes no object either.
    EXPECT_NE(reserialised(nested(99, "[", "]").replace(99, 1, "{}")), "refused");
    EXPECT_EQ(reserialised(nested(100, "[", "]").replace(100, 1, "{}")), "refused");
}

TEST(Document, MixedNestingHasTheSameBounds) {
    EXPECT_NE(reserialised("[" + nested(999, "{\"a\":", "}") + "]"), "refused");
    EXPECT_EQ(reserialised("[" + nested(1000, "{\"a\":", "}") + "]"), "refused");
    EXPECT_NE(reserialised(nested(998, "{\"a\":", "}").replace(998 * 5, 1, "[[1]]")), "refused");
    EXPECT_EQ(reserialised(nested(999, "{\"a\":", "}").replace(999 * 5, 1, "[[1]]")), "refused");
    EXPECT_EQ(reserialised(nested(1000, "{\"a\":", "}").replace(1000 * 5, 1, "[1]")), "refused");
}

TEST(Document, AnyNumberMayStandSideBySide) {
    std::string text = "[";
    for (int i = 0; i < 2000; ++i) text += R"([],{},{"a":[{}]},)";
    text += "0]";
    EXPECT_EQ(reserialised(text), text);
}

TEST(Document, AHugeDepthEndsQuietly) {
    EXPECT_EQ(reserialised(std::string(5'000'000, '{')), "refused");
    EXPECT_EQ(reserialised(std::string(5'000'000, '[')), "refused");
}

TEST(Document, RefusesMoreThanItsValuesCanHold) {
    std::string text(maximumSize, ' ');
    text.replace(0, 2, "[]");
    EXPECT_EQ(reserialised(text), "[]");
    text += ' ';
    EXPECT_EQ(lineOfError(std::move(text)), 1);
}

TEST(ObjectOrExit, GivesTheObject) {
    const Document document(R"({"a":1})");
    EXPECT_EQ(objectOrExit(document.root(), "no object").data(), document.root().object()->data());
}

TEST(ObjectOrExitDeathTest, EndsTheProcessForAnyOtherKind) {
    for (const char* text : {"[{}]", "null", "1", "\"{}\""}) {
        EXPECT_EXIT(objectOrExit(Document(text).root(), "no object %s"), testing::ExitedWithCode(1),
                    "^no object %s$")
            << text;
    }
}

}  // namespace
}  // namespace metagen::json

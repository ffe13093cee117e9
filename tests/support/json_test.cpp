#include "support/json.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace metagen::json {
namespace {

std::string reserialised(std::string_view text) {
    const std::optional<Value> value = parse(text);
    return value ? compactText(*value) : "refused";
}

std::string nested(std::size_t depth, const std::string& open, const std::string& close) {
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) text += open;
    text += "1";
    for (std::size_t i = 0; i < depth; ++i) text += close;
    return text;
}

template <typename Exception, typename Call>
std::string messageOf(const Call& call) {
    try {
        call();
    } catch (const Exception& exception) {
        return exception.what();
    }
    return "nothing thrown";
}

TEST(JsonParse, ReadsEveryKindOfValue) {
    EXPECT_EQ(reserialised(R"( {"o":{},"a":[1,-2.5,"t"],"b":true,"n":null} )"),
              R"({"a":[1,-2.5,"t"],"b":true,"n":null,"o":{}})");
}

TEST(JsonParse, IgnoresTextAfterTheValue) { EXPECT_EQ(reserialised("{} x"), "{}"); }

TEST(JsonParse, KeepsEveryByteOfAText) {
    EXPECT_EQ(reserialised(R"(["a\u0000b"])"), R"(["a\u0000b"])");
    EXPECT_EQ(reserialised("\" \x7f\""), "\" \\u007f\"");
}

TEST(JsonParse, KeepsTheLastOfEqualMembers) {
    EXPECT_EQ(reserialised(R"({"a":1,"a":2})"), R"({"a":2})");
}

TEST(JsonParse, TakesFourBytesAsBlanks) {
    EXPECT_EQ(reserialised(" \t\r\n{\r\"a\"\r:\r[\r1\r,\r2\r]\r}"), R"({"a":[1,2]})");
}

TEST(JsonParse, RefusesAByteOrderMark) { EXPECT_EQ(reserialised("\xef\xbb\xbf{}"), "refused"); }

TEST(JsonParse, RefusesBrokenText) {
    for (const char* text : {"", "   ", "{", "[1,]", "{\"a\" 1}", "nul", "\"a", "'a'", "-", "+1",
                             "\f{}", "[\v1]", "\"\x1f\""}) {
        EXPECT_EQ(reserialised(text), "refused") << text;
    }
}

int lineOfError(std::string_view text) {
    int line = 0;
    EXPECT_FALSE(parse(text, line));
    return line;
}

TEST(JsonParse, TellsTheLineOfAnError) {
    EXPECT_EQ(lineOfError("{"), 1);
    EXPECT_EQ(lineOfError("{\n\"a\": 1,\n\"b\": ?\n}\n"), 3);
    EXPECT_EQ(lineOfError("[1,\n1e309,\n2]\n"), 2);
    EXPECT_EQ(lineOfError("{\n\"a\nb\": 1}"), 2);  // the line break itself is the error
}

TEST(JsonParse, RefusesNumbersBeyondADouble) {
    EXPECT_EQ(reserialised("[1e309]"), "refused");
    EXPECT_EQ(reserialised("-1e309"), "refused");
    EXPECT_EQ(reserialised("1e308"), "1e+308");
}

TEST(JsonParse, ObjectsNestAThousandDeepAndNoDeeper) {
    EXPECT_NE(reserialised(nested(1000, "{\"a\":", "}")), "refused");
    EXPECT_EQ(reserialised(nested(1001, "{\"a\":", "}")), "refused");
}

TEST(JsonParse, ArraysNestAHundredDeepAsTheLibraryHasIt) {
    EXPECT_NE(reserialised(nested(100, "[", "]")), "refused");
    EXPECT_EQ(reserialised(nested(101, "[", "]")), "refused");
    // Within the deepest array the library takes no object either.
    EXPECT_NE(reserialised(nested(99, "[", "]").replace(99, 1, "{}")), "refused");
    EXPECT_EQ(reserialised(nested(100, "[", "]").replace(100, 1, "{}")), "refused");
}

TEST(JsonParse, MixedNestingHasTheSameBounds) {
    EXPECT_NE(reserialised("[" + nested(999, "{\"a\":", "}") + "]"), "refused");
    EXPECT_EQ(reserialised("[" + nested(1000, "{\"a\":", "}") + "]"), "refused");
    EXPECT_NE(reserialised(nested(998, "{\"a\":", "}").replace(998 * 5, 1, "[[1]]")), "refused");
    EXPECT_EQ(reserialised(nested(999, "{\"a\":", "}").replace(999 * 5, 1, "[[1]]")), "refused");
    EXPECT_EQ(reserialised(nested(1000, "{\"a\":", "}").replace(1000 * 5, 1, "[1]")), "refused");
}

TEST(JsonParse, AHugeDepthEndsQuietly) {
    EXPECT_EQ(reserialised(std::string(5'000'000, '{')), "refused");
    EXPECT_EQ(reserialised(std::string(5'000'000, '[')), "refused");
}

TEST(JsonCompactText, EscapesTheSlashAndWrites17Digits) {
    EXPECT_EQ(reserialised(R"(["a/b",0.1,9007199254740992,1.0])"),
              R"(["a\/b",0.10000000000000001,9007199254740992,1])");
}

TEST(JsonCompactText, AppendsToWhatIsThere) {
    std::string out = "x";
    appendCompactText(out, Value(true));
    EXPECT_EQ(out, "xtrue");
}

TEST(JsonKeepToProcessEnd, KeepsEveryDocumentInItsPlace) {
    const Value& first = keepToProcessEnd(Value("first"));
    const Value* last = &first;
    for (double number = 0; number < 100; ++number) last = &keepToProcessEnd(Value(number));
    EXPECT_EQ(compactText(first), "\"first\"");
    EXPECT_EQ(compactText(*last), "99");
}

TEST(JsonMembers, FindGivesNullForAMissingMember) {
    const Value document = *parse(R"({"a":1})");
    EXPECT_EQ(find(asObject(document), "b"), nullptr);
    EXPECT_EQ(compactText(*find(asObject(document), "a")), "1");
}

TEST(JsonMembers, FindComparesWholeNames) {
    const Value document = *parse(R"({"ab":1,"b":2})");
    EXPECT_EQ(find(asObject(document), "a"), nullptr);
    EXPECT_EQ(find(asObject(document), "abc"), nullptr);
    EXPECT_EQ(find(asObject(document), ""), nullptr);
    EXPECT_EQ(compactText(*find(asObject(document), "b")), "2");
}

TEST(JsonMembers, FindLooksThroughObjectsOfAnySize) {
    Object object;
    for (std::size_t size = 0; size < 20; ++size) {
        const std::string name = "n" + std::string(size, 'x');
        EXPECT_EQ(find(object, name), nullptr) << size;
        EXPECT_EQ(find(object, "m"), nullptr) << size;
        object[name] = Value(static_cast<double>(size));
        for (const auto& member : object) EXPECT_EQ(find(object, member.first), &member.second);
    }
}

TEST(JsonMembers, AtThrowsForAMissingMember) {
    const Object object;
    EXPECT_EQ(messageOf<std::out_of_range>([&] { at(object, "a"); }), "invalid map<K, T> key");
}

TEST(JsonKinds, AWrongKindThrowsTheLibrarysText) {
    const Value number(1.0);
    Value text("t");
    EXPECT_EQ(messageOf<std::runtime_error>([&] { asObject(number); }),
              "\"type mismatch! call is<type>() before get<type>()\" && is<object>()");
    EXPECT_EQ(messageOf<std::runtime_error>([&] { asObject(text); }),
              "\"type mismatch! call is<type>() before get<type>()\" && is<object>()");
    EXPECT_EQ(messageOf<std::runtime_error>([&] { asString(number); }),
              "\"type mismatch! call is<type>() before get<type>()\" && is<std::string>()");
}

}  // namespace
}  // namespace metagen::json

#include "json/value.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "json/document.h"
#include "support/message_of.h"

namespace metagen::json {
namespace {

bool areEqual(const std::string& left, const std::string& right) {
    const Document leftDocument(left);
    const Document rightDocument(right);
    EXPECT_EQ(leftDocument.root() == rightDocument.root(),
              rightDocument.root() == leftDocument.root());
    return leftDocument.root() == rightDocument.root();
}

TEST(Value, HoldsOneKind) {
    const std::vector<Value> elements = {Value(true), Value(-0.5), Value("t"), Value()};
    const std::vector<Member> members = {{"a", elements[1]}};
    EXPECT_EQ(elements[0].boolean(), true);
    EXPECT_EQ(elements[1].number(), -0.5);
    EXPECT_EQ(elements[2].text(), "t");
    EXPECT_TRUE(elements[3].isNull());
    EXPECT_EQ(Value(Array(elements)).array()->data(), elements.data());
    EXPECT_EQ(Value(Object(members)).object()->data(), members.data());
    EXPECT_TRUE(Value(Object(members)).isObject());
}

TEST(Value, GivesNothingAsAnotherKind) {
    for (const Value& value : {Value(), Value(1.0), Value("t"), Value(true), Value(Array())}) {
        EXPECT_FALSE(value.isObject());
        EXPECT_EQ(value.object().has_value(), false);
        EXPECT_EQ(value.isNull(), value.kind() == Kind::null);
        EXPECT_EQ(value.boolean().has_value(), value.kind() == Kind::boolean);
        EXPECT_EQ(value.number().has_value(), value.kind() == Kind::number);
        EXPECT_EQ(value.text().has_value(), value.kind() == Kind::text);
        EXPECT_EQ(value.array().has_value(), value.kind() == Kind::array);
    }
}

TEST(ValueEquality, ComparesNumbersAsDoublesAndTextsAsBytes) {
    EXPECT_TRUE(areEqual("1", "1.0"));
    EXPECT_TRUE(areEqual("0", "-0"));
    EXPECT_FALSE(areEqual("1", "\"1\""));
    EXPECT_TRUE(areEqual(R"("a\u0041\/")", R"("aA/")"));
    EXPECT_FALSE(areEqual("\"a\"", "\"A\""));
    EXPECT_FALSE(areEqual("true", "false"));
    EXPECT_FALSE(areEqual("null", "false"));
}

TEST(ValueEquality, ComparesElementsInOrderAndMembersByKey) {
    EXPECT_TRUE(areEqual("[1,[2]]", "[1,[2.0]]"));
    EXPECT_FALSE(areEqual("[1,2]", "[2,1]"));
    EXPECT_FALSE(areEqual("[1]", "[1,1]"));
    EXPECT_FALSE(areEqual("[]", "{}"));
    EXPECT_TRUE(areEqual(R"({"a":1,"b":{}})", R"({"b":{},"a":1})"));
    EXPECT_FALSE(areEqual(R"({"a":1})", R"({"a":2})"));
    EXPECT_FALSE(areEqual(R"({"a":1})", R"({"b":1})"));
    EXPECT_FALSE(areEqual(R"({"a":1})", R"({"a":1,"b":1})"));
}

TEST(CompactText, EscapesTheSlashAndWrites17Digits) {
    EXPECT_EQ(compactText(Document(R"( ["a/b", 0.1, 9007199254740992, 1.0] )").root()),
              R"(["a\/b",0.10000000000000001,9007199254740992,1])");
}

TEST(CompactText, AppendsToWhatIsThere) {
    std::string out = "x";
    appendCompactText(out, Value(true));
    EXPECT_EQ(out, "xtrue");
}

TEST(Members, FindGivesNullForAMissingMember) {
    const Document document(R"({"a":1})");
    EXPECT_EQ(find(asObject(document.root()), "b"), nullptr);
    EXPECT_EQ(compactText(*find(asObject(document.root()), "a")), "1");
}

TEST(Members, FindComparesWholeNames) {
    const Document document(R"({"ab":1,"b":2})");
    const Object object = asObject(document.root());
    for (const char* missing : {"a", "abc", "", "aa", "c"})
        EXPECT_EQ(find(object, missing), nullptr);
    EXPECT_EQ(compactText(*find(object, "b")), "2");
}

TEST(Members, FindLooksThroughObjectsOfAnySize) {
    std::string text = "{";
    for (std::size_t size = 0; size < 20; ++size) {
        text +=
            (size == 0 ? "\"n" : ",\"n") + std::string(size, 'x') + "\":" + std::to_string(size);
        const Document document(text + "}");
        const Object object = asObject(document.root());
        EXPECT_EQ(object.size(), size + 1);
        EXPECT_EQ(find(object, "m"), nullptr);
        EXPECT_EQ(find(object, "n" + std::string(size + 1, 'x')), nullptr);
        for (const Member& member : object) EXPECT_EQ(find(object, member.key), &member.value);
    }
}

TEST(Members, AtThrowsForAMissingMember) {
    EXPECT_EQ(messageOf<std::out_of_range>([] { at(Object(), "a"); }), "invalid map<K, T> key");
}

TEST(Kinds, AWrongKindThrowsTheLibrarysText) {
    for (const Value& value : {Value(1.0), Value("t"), Value()}) {
        EXPECT_EQ(messageOf<std::runtime_error>([&] { asObject(value); }),
                  "\"type mismatch! call is<type>() before get<type>()\" && is<object>()");
    }
    EXPECT_EQ(messageOf<std::runtime_error>([] { asText(Value(1.0)); }),
              "\"type mismatch! call is<type>() before get<type>()\" && is<std::string>()");
}

}  // namespace
}  // namespace metagen::json

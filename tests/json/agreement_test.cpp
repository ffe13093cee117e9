// The JSON library's own tree is the referee: what a document holds is what that tree holds.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "json/referee.h"

namespace metagen::json {
namespace {

constexpr std::string_view sample =
    R"( {"type":"list" , "a/b":[1,-2.5e3,0.1,{"x":null},[]],"e":"\"\\\/\b\f\n\r\t\u00e4\ud83d\ude00",)"
    "\n\t\"empty\":{},\"t\":true,\"f\":false,\"\":\"\xc3\xa4\x7f\",\"a/b\":\"again\"} rest";

TEST(Agreement, OnTheSample) {
    ASSERT_TRUE(Document(std::string(sample)).isValid());
    EXPECT_EQ(disagreement(std::string(sample)), "");
}

TEST(Agreement, OnTheTextOfEveryByte) {
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        for (const std::string& text : {byte, "a" + byte + "b", byte + byte}) {
            EXPECT_EQ(compactText(Value(text)), picojson::value(text).serialize()) << code;
        }
    }
}

TEST(Agreement, OnEveryBeginningAndEveryEnd) {
    for (std::size_t length = 0; length <= sample.size(); ++length) {
        ASSERT_EQ(disagreement(std::string(sample.substr(0, length))), "") << length;
        ASSERT_EQ(disagreement(std::string(sample.substr(length))), "") << length;
    }
}

TEST(Agreement, OnChangedBytes) {
    constexpr std::string_view bytes = "\"\\{}[]:,-+.0123456789eEunltrfabsd \n\t\x01\x7f\xff/";
    std::mt19937 random(20);
    const auto below = [&](std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
    };
    for (int round = 0; round < 20'000; ++round) {
        std::string text(sample);
        for (std::size_t change = below(3) + 1; change > 0; --change) {
            text[below(text.size())] = bytes[below(bytes.size())];
        }
        ASSERT_EQ(disagreement(text), "") << text;
    }
}

}  // namespace
}  // namespace metagen::json

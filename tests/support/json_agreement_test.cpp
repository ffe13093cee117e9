// The parser reads from one buffer; what it accepts and what it makes of it is the JSON library's.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "support/json.h"

namespace metagen::json {
namespace {

constexpr std::string_view sample =
    R"( {"type":"list" , "a/b":[1,-2.5e3,0.1,{"x":null},[]],"e":"\"\\\/\b\f\n\r\t\u00e4\ud83d\ude00",)"
    "\n\t\"empty\":{},\"t\":true,\"f\":false,\"\":\"\xc3\xa4\x7f\",\"a/b\":\"again\"} rest";

std::string ours(std::string_view text) {
    const std::optional<Value> value = parse(text);
    return value ? compactText(*value) : "refused";
}

std::string theLibrarys(const std::string& text) try {
    Value value;
    std::string error;
    picojson::parse(value, text.data(), text.data() + text.size(), &error);
    return error.empty() ? value.serialize() : "refused";
} catch (const std::overflow_error&) {
    return "refused";
}

TEST(JsonAgreement, OnTheSample) {
    EXPECT_NE(ours(sample), "refused");
    EXPECT_EQ(ours(sample), theLibrarys(std::string(sample)));
}

TEST(JsonAgreement, OnTheTextOfEveryByte) {
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        for (const std::string& text : {byte, "a" + byte + "b", byte + byte}) {
            EXPECT_EQ(compactText(Value(text)), Value(text).serialize()) << code;
        }
    }
}

TEST(JsonAgreement, OnEveryBeginningAndEveryEnd) {
    for (std::size_t length = 0; length <= sample.size(); ++length) {
        const std::string beginning(sample.substr(0, length));
        ASSERT_EQ(ours(beginning), theLibrarys(beginning)) << beginning;
        const std::string end(sample.substr(length));
        ASSERT_EQ(ours(end), theLibrarys(end)) << end;
    }
}

TEST(JsonAgreement, OnChangedBytes) {
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
        ASSERT_EQ(ours(text), theLibrarys(text)) << text;
    }
}

}  // namespace
}  // namespace metagen::json

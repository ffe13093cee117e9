#include "replay_sdk/catalogue_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "replay_sdk/catalogue_helpers.h"

namespace metagen::replay {
namespace {

template <typename Payload>
Payload payloadOf(const std::string& taggedDefault, std::int32_t expectedKind) {
    const DefaultValue value = readDefaultOf(taggedDefault);
    EXPECT_EQ(value.kind, expectedKind) << taggedDefault;
    const Payload* payload = std::get_if<Payload>(&value.payload);
    EXPECT_NE(payload, nullptr) << taggedDefault;
    return payload == nullptr ? Payload() : *payload;
}

using Floats = std::vector<float>;

TEST(TaggedDefault, ReadsScalars) {
    EXPECT_EQ(payloadOf<std::int32_t>(R"({"kind":"integer","value":-2147483648})", 0),
              std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(payloadOf<float>(R"({"kind":"float","value":0.1})", 1), 0.1F);
    EXPECT_EQ(payloadOf<double>(R"({"kind":"double","value":0.1})", 2), 0.1);
    EXPECT_EQ(payloadOf<std::uint8_t>(R"({"kind":"bool","value":true})", 3), 1);
    EXPECT_EQ(payloadOf<std::uint8_t>(R"({"kind":"bool","value":255})", 3), 255);
    EXPECT_EQ(payloadOf<std::string>(R"({"kind":"string","value":"a\n"})", 9), "a\n");
}

TEST(TaggedDefault, ReadsNumbersThatJsonLacks) {
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(payloadOf<float>(R"({"kind":"float","value":"inf"})", 1), infinity);
    EXPECT_EQ(payloadOf<float>(R"({"kind":"float","value":"-inf"})", 1), -infinity);
    EXPECT_TRUE(std::isnan(payloadOf<double>(R"({"kind":"double","value":"nan"})", 2)));
    EXPECT_TRUE(std::signbit(payloadOf<double>(R"({"kind":"double","value":"-nan"})", 2)));
}

TEST(TaggedDefault, ReadsCompounds) {
    EXPECT_EQ(payloadOf<Floats>(R"({"kind":"vector","value":[1,2,3]})", 4), (Floats{1, 2, 3}));
    EXPECT_EQ(payloadOf<Floats>(R"({"kind":"color","value":[1,2,3]})", 5), (Floats{1, 2, 3}));
    EXPECT_EQ(payloadOf<Floats>(R"({"kind":"acolor","value":[1,2,3,4]})", 6), (Floats{1, 2, 3, 4}));
    EXPECT_EQ(payloadOf<Floats>(R"({"kind":"matrix","value":[1,2,3,4,5,6,7,8,9]})", 7).size(), 9U);
    EXPECT_EQ(
        payloadOf<Floats>(R"({"kind":"transform","value":[1,2,3,4,5,6,7,8,9,10,11,12]})", 8).size(),
        12U);
}

TEST(TaggedDefault, ReadsLists) {
    EXPECT_EQ(payloadOf<std::vector<std::int32_t>>(R"({"kind":"integerList","value":[1,2]})", 100),
              (std::vector<std::int32_t>{1, 2}));
    EXPECT_EQ(payloadOf<Floats>(R"({"kind":"floatList","value":[1,"inf"]})", 101).size(), 2U);
    EXPECT_EQ(payloadOf<Floats>(R"({"kind":"vectorList","value":[[1,2,3],[4,5,6]]})", 104),
              (Floats{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(payloadOf<Floats>(R"({"kind":"colorList","value":[[1,2,3]]})", 105),
              (Floats{1, 2, 3}));
    EXPECT_EQ(payloadOf<std::vector<Text>>(R"({"kind":"stringList","value":["a",null]})", 109),
              (std::vector<Text>{"a", std::nullopt}));
    EXPECT_EQ(payloadOf<Floats>(R"({"kind":"transformList","value":[]})", 108), Floats());
}

TEST(TaggedDefault, ReadsGenericListsInGenericLists) {
    const auto outer = payloadOf<std::vector<DefaultValue>>(
        R"({"kind":"list","value":[{"kind":"list","value":[{"kind":"badValue"}]}]})", 12);
    ASSERT_EQ(outer.size(), 1U);
    const auto& inner = std::get<std::vector<DefaultValue>>(outer[0].payload);
    ASSERT_EQ(inner.size(), 1U);
    EXPECT_EQ(inner[0].kind, -1);
}

TEST(TaggedDefault, ReadsPluginReferences) {
    const auto reference = payloadOf<PluginReference>(
        R"({"kind":"plugin","value":{"id":"0xFFFF000000000005","propertyIndex":2}})", 10);
    EXPECT_EQ(reference.pluginId, -281474976710651);
    EXPECT_EQ(reference.propertyIndex, 2);
    EXPECT_TRUE(reference.hasRenderer);
    const auto list = payloadOf<std::vector<PluginReference>>(
        R"({"kind":"pluginList","value":[{"id":-5,"renderer":false}]})", 110);
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0].pluginId, -5);
    EXPECT_FALSE(list[0].hasRenderer);
}

TEST(TaggedDefault, ReadsNullWhereAPointerIs) {
    const std::pair<const char*, std::int32_t> kinds[] = {
        {"string", 9},       {"list", 12},        {"integerList", 100},
        {"floatList", 101},  {"vectorList", 104}, {"colorList", 105},
        {"stringList", 109}, {"pluginList", 110}, {"transformList", 108}};
    for (const auto& [name, tag] : kinds)
        payloadOf<std::monostate>(std::string(R"({"kind":")") + name + R"(","value":null})", tag);
}

TEST(TaggedDefault, ReadsKindsWithoutAValue) {
    payloadOf<std::monostate>(R"({"kind":"badValue"})", -1);
    payloadOf<std::monostate>(R"({"kind":"unspecified"})", 10000);
    payloadOf<std::monostate>(R"({"kind":20000})", 20000);
    payloadOf<std::monostate>(R"({"kind":11})", 11);
}

TEST(TaggedDefault, TakesAKindByItsTag) {
    EXPECT_EQ(payloadOf<std::int32_t>(R"({"kind":0,"value":7})", 0), 7);
}

}  // namespace
}  // namespace metagen::replay

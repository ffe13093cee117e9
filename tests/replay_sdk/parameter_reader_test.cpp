#include "replay_sdk/catalogue_reader.h"

#include <gtest/gtest.h>

#include "replay_sdk/catalogue_helpers.h"

namespace metagen::replay {
namespace {

void expectFacts(const std::string& parameter, std::int32_t typeCode, std::uint32_t elementsCount) {
    const ParameterFacts facts = readOne(parameter).facts;
    EXPECT_EQ(facts.typeCode, typeCode) << parameter;
    EXPECT_EQ(facts.elementsCount, elementsCount) << parameter;
}

TEST(ParameterType, HasTheCodeOfItsName) {
    expectFacts(R"({"type":"integer"})", 0, noList);
    expectFacts(R"({"type":"list"})", 12, noList);
    expectFacts(R"({"type":"transform texture"})", 17, noList);
}

TEST(ParameterType, OfAListIsTheElementsCodeAndAHundred) {
    expectFacts(R"({"type":"list","listType":"integer"})", 100, 0);
    expectFacts(R"({"type":"list","listType":"transform texture"})", 117, 0);
    expectFacts(R"({"type":"list","listType":"list"})", 12, 0);
}

TEST(ParameterType, MayBeAnyCode) {
    expectFacts(R"({"typeCode":10000})", 10000, noList);
    expectFacts(R"({"typeCode":-3})", -3, noList);
    expectFacts(R"({"typeCode":12})", 12, noList);
    expectFacts(R"({"typeCode":100})", 100, 0);
    expectFacts(R"({"typeCode":117})", 117, 0);
    expectFacts(R"({"typeCode":118})", 118, noList);
}

TEST(ParameterType, MayHaveAnyElementCount) {
    expectFacts(R"({"type":"float","elementsCount":3})", 1, 3);
    expectFacts(R"({"typeCode":101,"elementsCount":-1})", 101, noList);
    expectFacts(R"({"typeCode":101,"elementsCount":4294967295})", 101, noList);
}

TEST(ParameterDefault, OfASingleValueIsServedAsItsText) {
    const Parameter parameter =
        readOne(R"json({"type":"color","defaultValue":"Color(1, 1, 1)"})json");
    EXPECT_EQ(parameter.defaultValue.kind, type_code::string);
    EXPECT_EQ(std::get<std::string>(parameter.defaultValue.payload), "Color(1, 1, 1)");
}

TEST(ParameterDefault, OfAListIsAList) {
    const std::pair<const char*, std::int32_t> lists[] = {
        {R"json({"type":"list","listType":"float","defaultValue":"FloatList(1)"})json", 101},
        {R"json({"typeCode":100,"defaultValue":"List(a)"})json", 12},
        {R"json({"typeCode":1,"elementsCount":2,"defaultValue":"IntList(1)"})json", 100}};
    for (const auto& [parameter, tag] : lists)
        EXPECT_EQ(readOne(parameter).defaultValue.kind, tag) << parameter;
}

TEST(ParameterDefault, ThatIsAbsentIsOneThatIsNotWritten) {
    const DefaultValue single = readOne(R"({"type":"color"})").defaultValue;
    EXPECT_EQ(single.kind, type_code::string);
    EXPECT_EQ(std::get<std::string>(single.payload), "\"\"");
    const DefaultValue list = readOne(R"({"type":"list","listType":"color"})").defaultValue;
    EXPECT_EQ(list.kind, type_code::list);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(list.payload));
}

TEST(ParameterGuide, IsNoneUnlessTold) { EXPECT_EQ(readOne(R"({"type":"color"})").guide, nullptr); }

TEST(ParameterGuide, HasAFloatAndFloats) {
    const Parameter parameter = readOne(R"({"typeCode":5,"guide":{"float":0.5,"floats":[1,2]}})");
    ASSERT_NE(parameter.guide, nullptr);
    EXPECT_EQ(parameter.guide->single, 0.5F);
    EXPECT_EQ(parameter.guide->floats, (std::vector<float>{1, 2}));
}

TEST(ParameterGuide, MayHaveNoFloats) {
    EXPECT_EQ(readOne(R"({"typeCode":5,"guide":{}})").guide->floats, std::nullopt);
    EXPECT_EQ(readOne(R"({"typeCode":5,"guide":{"floats":null}})").guide->floats, std::nullopt);
    EXPECT_EQ(readOne(R"({"typeCode":5,"guide":{"floats":[]}})").guide->floats,
              std::vector<float>());
}

TEST(ParameterGpuSupport, IsZeroUnlessTold) {
    EXPECT_EQ(readOne(R"({"type":"float"})").facts.gpuSupport, 0);
    EXPECT_EQ(readOne(R"({"type":"float","gpuSupport":3})").facts.gpuSupport, 3);
}

}  // namespace
}  // namespace metagen::replay

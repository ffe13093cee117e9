#include "replay_sdk/list_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace metagen::replay {
namespace {

std::int64_t lengthAsId(std::string_view name) { return static_cast<std::int64_t>(name.size()); }

DefaultValue listOf(const char* text) {
    std::optional<DefaultValue> list = listFromText(text, lengthAsId);
    EXPECT_TRUE(list) << text;
    return list.value_or(DefaultValue());
}

void expectNoList(const char* text) { EXPECT_FALSE(listFromText(text, lengthAsId)) << text; }

template <typename Element>
std::vector<Element> elementsOf(const DefaultValue& list) {
    return std::get<std::vector<Element>>(list.payload);
}

TEST(ListText, ReadsIntegers) {
    const DefaultValue list = listOf("IntList(1, -2, 2147483647)");
    EXPECT_EQ(list.kind, listCodeOf(type_code::integer));
    EXPECT_EQ(elementsOf<std::int32_t>(list), (std::vector<std::int32_t>{1, -2, 2147483647}));
}

TEST(ListText, ReadsFloats) {
    const DefaultValue list = listOf("FloatList(0.5, 1e-07, 1.23457e+08, -0, inf)");
    EXPECT_EQ(list.kind, listCodeOf(type_code::floatNumber));
    EXPECT_EQ(
        elementsOf<float>(list),
        (std::vector<float>{0.5F, 1e-7F, 123457000, 0, std::numeric_limits<float>::infinity()}));
}

TEST(ListText, ReadsVectorsAndColours) {
    const DefaultValue vectors = listOf("VectorList(Vector(1, 2, 3), Vector(4, 5, 6))");
    EXPECT_EQ(vectors.kind, listCodeOf(type_code::vector));
    EXPECT_EQ(elementsOf<float>(vectors), (std::vector<float>{1, 2, 3, 4, 5, 6}));
    const DefaultValue colors = listOf("ColorList(Color(1, 0.5, 0))");
    EXPECT_EQ(colors.kind, listCodeOf(type_code::color));
    EXPECT_EQ(elementsOf<float>(colors), (std::vector<float>{1, 0.5F, 0}));
}

TEST(ListText, ReadsTransforms) {
    const DefaultValue list = listOf(
        "TransformList(Transform(Matrix(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9)), "
        "Vector(10, 11, 12)))");
    EXPECT_EQ(list.kind, listCodeOf(type_code::transform));
    EXPECT_EQ(elementsOf<float>(list), (std::vector<float>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
}

TEST(ListText, ReadsTexts) {
    const DefaultValue list = listOf("StringList(a, , b)c)");
    EXPECT_EQ(list.kind, listCodeOf(type_code::string));
    EXPECT_EQ(elementsOf<Text>(list), (std::vector<Text>{"a", "", "b)c"}));
}

TEST(ListText, ReadsPluginsByTheirNames) {
    const DefaultValue list = listOf("PluginList(abc, , a)");
    EXPECT_EQ(list.kind, listCodeOf(type_code::plugin));
    std::vector<std::int64_t> ids;
    for (const PluginReference& reference : elementsOf<PluginReference>(list))
        ids.push_back(reference.pluginId);
    EXPECT_EQ(ids, (std::vector<std::int64_t>{3, 0, 1}));
}

TEST(ListText, ReadsElementsOfAGenericListAsTexts) {
    const DefaultValue list = listOf("List(3, Color(1, 0, 0))");
    EXPECT_EQ(list.kind, type_code::list);
    std::vector<std::string> texts;
    for (const DefaultValue& element : elementsOf<DefaultValue>(list)) {
        EXPECT_EQ(element.kind, type_code::string);
        texts.push_back(std::get<std::string>(element.payload));
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"3", "Color(1", "0", "0)"}));
}

TEST(ListText, HasOneEmptyElementWhereNothingStands) {
    EXPECT_EQ(elementsOf<DefaultValue>(listOf("List()")).size(), 1U);
    EXPECT_EQ(elementsOf<Text>(listOf("StringList()")), (std::vector<Text>{""}));
    EXPECT_EQ(elementsOf<PluginReference>(listOf("PluginList()")).size(), 1U);
}

TEST(ListText, RefusesWhatNoListOfNumbersIsWrittenAs) {
    for (const char* text : {"IntList()",
                             "IntList(01)",
                             "IntList(1,2)",
                             "IntList( 1)",
                             "IntList(1, )",
                             "IntList(1.5)",
                             "IntList(2147483648)",
                             "IntList(+1)",
                             "FloatList()",
                             "FloatList(1.0)",
                             "FloatList(0x1)",
                             "FloatList(0.1234567)",
                             "FloatList(1e99)",
                             "FloatList(1))",
                             "VectorList(1, 2, 3)",
                             "VectorList(Vector(1, 2))",
                             "VectorList(Vector(1, 2, 3, 4))",
                             "VectorList()",
                             "VectorList(Color(1, 2, 3))",
                             "ColorList(Vector(1, 2, 3))",
                             "TransformList(Vector(1, 2, 3))"})
        expectNoList(text);
}

TEST(ListText, RefusesWhatIsNoList) {
    for (const char* text : {"", "1, 2", "Color(1, 1, 1)", "list(1)", "List(", "List", "List(1) ",
                             " List(1)", "MatrixList(1)"})
        expectNoList(text);
}

}  // namespace
}  // namespace metagen::replay

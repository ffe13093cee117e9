#include "replay_sdk/value_writer.h"

#include <gtest/gtest.h>

#include <cstring>

namespace metagen::replay {
namespace {

int rendererStandIn = 0;
void* const renderer = &rendererStandIn;

/// A value as it is handed out; the blocks below it are the registry's to free.
class ValueWriting : public testing::Test {
protected:
    QyraValue written(DefaultValue value) {
        QyraValue out;
        std::memset(&out, 0x5A, sizeof(out));
        ValueWriter(blocks, renderer).write(value, out);
        return out;
    }

    /// The elements of a list that must have this many.
    template <typename Element>
    std::vector<Element> elements(const QyraValue& value, std::uint32_t count) {
        EXPECT_EQ(value.count, count);
        const auto* first = static_cast<const Element*>(value.elements);
        return {first, first + count};
    }

    BlockRegistry blocks{false};
};

TEST_F(ValueWriting, WritesScalars) {
    EXPECT_EQ(written({type_code::integer, -7}).integer, -7);
    EXPECT_EQ(written({type_code::floatNumber, 0.5F}).single, 0.5F);
    EXPECT_EQ(written({type_code::doubleNumber, 0.1}).real, 0.1);
    EXPECT_EQ(written({type_code::boolean, std::uint8_t{255}}).boolean, 255);
    EXPECT_EQ(blocks.createdCount(), 0U);
}

TEST_F(ValueWriting, WritesTheKindAndNoCount) {
    const QyraValue value = written({20000, {}});
    EXPECT_EQ(value.kind, 20000);
    EXPECT_EQ(value.count, 0U);
}

TEST_F(ValueWriting, WritesCompoundsInPlace) {
    const QyraValue value = written({type_code::acolor, std::vector<float>{1, 2, 3, 4}});
    const float expected[12] = {1, 2, 3, 4};
    EXPECT_EQ(0, std::memcmp(value.components, expected, sizeof(expected)));
    EXPECT_EQ(value.count, 0U);
    EXPECT_EQ(blocks.createdCount(), 0U);
}

TEST_F(ValueWriting, WritesATextAsABlock) {
    EXPECT_STREQ(written({type_code::string, std::string("text")}).text, "text");
    EXPECT_EQ(blocks.liveCount(), 1U);
}

TEST_F(ValueWriting, WritesNullForNoTextAndNoElements) {
    EXPECT_EQ(written({type_code::string, {}}).text, nullptr);
    const QyraValue list = written({listCodeOf(type_code::integer), {}});
    EXPECT_EQ(list.elements, nullptr);
    EXPECT_EQ(list.count, 0U);
    EXPECT_EQ(blocks.createdCount(), 0U);
}

TEST_F(ValueWriting, WritesAnEmptyListAsABlock) {
    const QyraValue list = written({listCodeOf(type_code::vector), std::vector<float>()});
    EXPECT_NE(list.elements, nullptr);
    EXPECT_EQ(list.count, 0U);
}

TEST_F(ValueWriting, CountsElementsAndNotFloats) {
    EXPECT_EQ(
        elements<float>(written({listCodeOf(type_code::floatNumber), std::vector<float>{1, 2}}), 2),
        (std::vector<float>{1, 2}));
    EXPECT_EQ(written({listCodeOf(type_code::color), std::vector<float>(6)}).count, 2U);
    EXPECT_EQ(written({listCodeOf(type_code::transform), std::vector<float>(24)}).count, 2U);
}

TEST_F(ValueWriting, WritesIntegers) {
    EXPECT_EQ(elements<std::int32_t>(
                  written({listCodeOf(type_code::integer), std::vector<std::int32_t>{1, -2}}), 2),
              (std::vector<std::int32_t>{1, -2}));
}

TEST_F(ValueWriting, WritesEachTextOfAListAsABlock) {
    const auto texts = elements<char*>(
        written({listCodeOf(type_code::string), std::vector<Text>{"a", std::nullopt, ""}}), 3);
    EXPECT_STREQ(texts[0], "a");
    EXPECT_EQ(texts[1], nullptr);
    EXPECT_STREQ(texts[2], "");
    EXPECT_EQ(blocks.liveCount(), 3U);
}

TEST_F(ValueWriting, WritesPluginReferences) {
    const QyraPluginReference single =
        written({type_code::plugin, PluginReference{true, -5, 3}}).reference;
    EXPECT_EQ(single.renderer, renderer);
    EXPECT_EQ(single.pluginId, -5);
    EXPECT_EQ(single.propertyIndex, 3);
    const auto list = elements<QyraPluginReference>(
        written({listCodeOf(type_code::plugin), std::vector<PluginReference>{{false, 7, 0}}}), 1);
    EXPECT_EQ(list[0].renderer, nullptr);
    EXPECT_EQ(list[0].pluginId, 7);
}

TEST_F(ValueWriting, WritesValuesInValues) {
    const DefaultValue inner{type_code::list, std::vector<DefaultValue>{{type_code::integer, 7}}};
    const auto outer = elements<QyraValue>(
        written({type_code::list,
                 std::vector<DefaultValue>{{type_code::string, std::string("a")}, inner}}),
        2);
    EXPECT_STREQ(outer[0].text, "a");
    EXPECT_EQ(elements<QyraValue>(outer[1], 1)[0].integer, 7);
    EXPECT_EQ(blocks.liveCount(), 3U);
}

}  // namespace
}  // namespace metagen::replay

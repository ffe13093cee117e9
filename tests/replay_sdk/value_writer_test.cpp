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
    EXPECT_EQ(written({kind::integer, -7}).integer, -7);
    EXPECT_EQ(written({kind::single, 0.5F}).single, 0.5F);
    EXPECT_EQ(written({kind::real, 0.1}).real, 0.1);
    EXPECT_EQ(written({kind::boolean, std::uint8_t{255}}).boolean, 255);
    EXPECT_EQ(blocks.createdCount(), 0U);
}

TEST_F(ValueWriting, WritesTheKindAndNoCount) {
    const QyraValue value = written({20000, {}});
    EXPECT_EQ(value.kind, 20000);
    EXPECT_EQ(value.count, 0U);
}

TEST_F(ValueWriting, WritesCompoundsInPlace) {
    const QyraValue value = written({kind::acolor, std::vector<float>{1, 2, 3, 4}});
    const float expected[12] = {1, 2, 3, 4};
    EXPECT_EQ(0, std::memcmp(value.components, expected, sizeof(expected)));
    EXPECT_EQ(value.count, 0U);
    EXPECT_EQ(blocks.createdCount(), 0U);
}

TEST_F(ValueWriting, WritesATextAsABlock) {
    EXPECT_STREQ(written({kind::string, std::string("text")}).text, "text");
    EXPECT_EQ(blocks.liveCount(), 1U);
}

TEST_F(ValueWriting, WritesNullForNoTextAndNoElements) {
    EXPECT_EQ(written({kind::string, {}}).text, nullptr);
    const QyraValue list = written({kind::integerList, {}});
    EXPECT_EQ(list.elements, nullptr);
    EXPECT_EQ(list.count, 0U);
    EXPECT_EQ(blocks.createdCount(), 0U);
}

TEST_F(ValueWriting, WritesAnEmptyListAsABlock) {
    const QyraValue list = written({kind::vectorList, std::vector<float>()});
    EXPECT_NE(list.elements, nullptr);
    EXPECT_EQ(list.count, 0U);
}

TEST_F(ValueWriting, CountsElementsAndNotFloats) {
    EXPECT_EQ(elements<float>(written({kind::floatList, std::vector<float>{1, 2}}), 2),
              (std::vector<float>{1, 2}));
    EXPECT_EQ(written({kind::colorList, std::vector<float>(6)}).count, 2U);
    EXPECT_EQ(written({kind::transformList, std::vector<float>(24)}).count, 2U);
}

TEST_F(ValueWriting, WritesIntegers) {
    EXPECT_EQ(
        elements<std::int32_t>(written({kind::integerList, std::vector<std::int32_t>{1, -2}}), 2),
        (std::vector<std::int32_t>{1, -2}));
}

TEST_F(ValueWriting, WritesEachTextOfAListAsABlock) {
    const auto texts =
        elements<char*>(written({kind::stringList, std::vector<Text>{"a", std::nullopt, ""}}), 3);
    EXPECT_STREQ(texts[0], "a");
    EXPECT_EQ(texts[1], nullptr);
    EXPECT_STREQ(texts[2], "");
    EXPECT_EQ(blocks.liveCount(), 3U);
}

TEST_F(ValueWriting, WritesPluginReferences) {
    const QyraPluginReference single =
        written({kind::plugin, PluginReference{true, -5, 3}}).reference;
    EXPECT_EQ(single.renderer, renderer);
    EXPECT_EQ(single.pluginId, -5);
    EXPECT_EQ(single.propertyIndex, 3);
    const auto list = elements<QyraPluginReference>(
        written({kind::pluginList, std::vector<PluginReference>{{false, 7, 0}}}), 1);
    EXPECT_EQ(list[0].renderer, nullptr);
    EXPECT_EQ(list[0].pluginId, 7);
}

TEST_F(ValueWriting, WritesValuesInValues) {
    const DefaultValue inner{kind::list, std::vector<DefaultValue>{{kind::integer, 7}}};
    const auto outer = elements<QyraValue>(
        written({kind::list, std::vector<DefaultValue>{{kind::string, std::string("a")}, inner}}),
        2);
    EXPECT_STREQ(outer[0].text, "a");
    EXPECT_EQ(elements<QyraValue>(outer[1], 1)[0].integer, 7);
    EXPECT_EQ(blocks.liveCount(), 3U);
}

}  // namespace
}  // namespace metagen::replay

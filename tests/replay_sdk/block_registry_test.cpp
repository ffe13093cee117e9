#include "replay_sdk/block_registry.h"

#include <gtest/gtest.h>

#include <cstring>

namespace metagen::replay {
namespace {

constexpr EntryPoint guides = EntryPoint::Qyra_UIGuides_getFloats;
constexpr EntryPoint defaults = EntryPoint::Qyra_PluginUtils_getPropertyDefaultValue;

TEST(BlockRegistry, CopiesATextWithItsEnd) {
    BlockRegistry blocks(false);
    EXPECT_STREQ(blocks.copyText("text", defaults), "text");
}

TEST(BlockRegistry, GivesABlockForNoBytes) {
    BlockRegistry blocks(false);
    EXPECT_NE(blocks.allocate(0, defaults), nullptr);
}

TEST(BlockRegistry, TellsTheMakerOfAReleasedBlock) {
    BlockRegistry blocks(false);
    void* block = blocks.allocate(4, guides);
    EXPECT_EQ(blocks.release(block), guides);
    EXPECT_EQ(blocks.release(block), std::nullopt);
}

TEST(BlockRegistry, LeavesUnknownAddressesAlone) {
    BlockRegistry blocks(true);
    int foreign = 0;
    EXPECT_EQ(blocks.release(&foreign), std::nullopt);
    EXPECT_EQ(blocks.makerOfLive(&foreign), std::nullopt);
    EXPECT_EQ(blocks.makerOfReleased(&foreign), std::nullopt);
}

TEST(BlockRegistry, RemembersReleasedBlocksWhenAsked) {
    for (const bool remembers : {true, false}) {
        BlockRegistry blocks(remembers);
        void* block = blocks.allocate(4, guides);
        EXPECT_EQ(blocks.makerOfReleased(block), std::nullopt);
        blocks.release(block);
        EXPECT_EQ(blocks.makerOfReleased(block).has_value(), remembers);
    }
}

TEST(BlockRegistry, CountsBlocks) {
    BlockRegistry blocks(false);
    blocks.allocate(1, guides);
    blocks.allocate(1, guides);
    blocks.release(blocks.allocate(1, defaults));
    EXPECT_EQ(blocks.createdCount(), 3U);
    EXPECT_EQ(blocks.liveCount(), 2U);
    EXPECT_EQ(blocks.liveByMaker(), (std::map<EntryPoint, std::size_t>{{guides, 2}}));
}

}  // namespace
}  // namespace metagen::replay

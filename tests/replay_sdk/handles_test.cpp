#include "replay_sdk/handles.h"

#include <gtest/gtest.h>

#include <string>

namespace metagen::replay {
namespace {

TEST(Handles, TellWhatTheyWereMadeFor) {
    const auto parts = readHandle(makeHandle(HandleKind::definition, 1500000));
    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->kind, HandleKind::definition);
    EXPECT_EQ(parts->index, 1500000U);
}

TEST(Handles, AreNeverAddresses) {
    const int onStack = 0;
    const auto onHeap = std::make_unique<int>();
    EXPECT_FALSE(readHandle(nullptr));
    EXPECT_FALSE(readHandle(&onStack));
    EXPECT_FALSE(readHandle(onHeap.get()));
    EXPECT_FALSE(readHandle("text"));
}

TEST(HandleTable, FindsWhatIsLive) {
    HandleTable<std::string> table(HandleKind::renderer);
    const void* handle = table.create("a");
    EXPECT_EQ(*table.find(handle), "a");
    EXPECT_EQ(table.find(makeHandle(HandleKind::renderer, 1)), nullptr);
    EXPECT_EQ(table.find(makeHandle(HandleKind::textVector, 0)), nullptr);
}

TEST(HandleTable, ReleasesOnceAndNeverReusesAHandle) {
    HandleTable<std::string> table(HandleKind::renderer);
    const void* handle = table.create("a");
    EXPECT_TRUE(table.release(handle));
    EXPECT_FALSE(table.release(handle));
    EXPECT_EQ(table.find(handle), nullptr);
    EXPECT_NE(table.create("b"), handle);
    EXPECT_TRUE(table.wasCreated(*readHandle(handle)));
}

TEST(HandleTable, KnowsTheNewestThatIsLive) {
    HandleTable<std::string> table(HandleKind::renderer);
    EXPECT_EQ(table.newestLive(), nullptr);
    const void* first = table.create("a");
    const void* second = table.create("b");
    EXPECT_EQ(table.newestLive(), second);
    table.release(second);
    EXPECT_EQ(table.newestLive(), first);
}

}  // namespace
}  // namespace metagen::replay

// The tool's session on the replay SDK, which is the SDK that is at hand to be loaded.
#include "sdk/sdk_session.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "sdk/entry_point_table.h"

namespace metagen {
namespace {

std::string firstLineOfLedger() {
    std::ifstream file(std::getenv("QYRA_REPLAY_LEDGER"));
    std::string line;
    std::getline(file, line);
    return line;
}

TEST(SdkSession, HoldsTheLibraryUntilItsEnd) {
    {
        const SdkSession session;
        EXPECT_EQ(firstLineOfLedger(), "unfinished");
    }
    EXPECT_EQ(firstLineOfLedger(), "clean");
}

std::vector<std::string> calls;

TEST(SdkSession, CountsItsUseThenSwitchesTheWindowOff) {
    SdkSession session;
    EntryPointTable& sdk = entryPoints();
    sdk.Qyra_incrementModuleReferenceCounter = [] { calls.emplace_back("count"); };
    sdk.Qyra_enableFrameBuffer = [](bool on) { calls.emplace_back(on ? "on" : "off"); };
    session.start();
    EXPECT_EQ(calls, (std::vector<std::string>{"count", "off"}));
    sdk.Qyra_incrementModuleReferenceCounter = nullptr;
    sdk.Qyra_enableFrameBuffer = nullptr;
    session.start();
    EXPECT_EQ(calls.size(), 2U);
}

}  // namespace
}  // namespace metagen

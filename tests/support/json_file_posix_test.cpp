#include <gtest/gtest.h>

#include "support/json_file.h"

namespace metagen::json {
namespace {

TEST(ParseFileOrExitOnPosixDeathTest, EndsTheProcessForAFileThatCanNotBeRead) {
    // A folder, opened past the check for folders: its first read fails.
    const auto parseFolder = [] {
        parseFileOrExit(File(std::fopen("/", "r")), "unreadable %s", "malformed %s");
    };
    EXPECT_EXIT(parseFolder(), testing::ExitedWithCode(1), "^unreadable %s$");
}

}  // namespace
}  // namespace metagen::json

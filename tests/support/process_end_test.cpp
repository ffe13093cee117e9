#include "support/process_end.h"

#include <gtest/gtest.h>

#include <string>

#include "support/exit_status.h"

namespace metagen {
namespace {

TEST(RequireOrExit, DoesNothingWhenTheConditionHolds) {
    requireOrExit(true, "Could not open file");
    SUCCEED();
}

TEST(RequireOrExitDeathTest, WritesTheMessageWithoutALineFeedAndEndsWithOne) {
    EXPECT_EXIT(requireOrExit(false, "Could not open the file - %s", "a%s.json"),
                testing::ExitedWithCode(1), "^Could not open the file - a%s\\.json$");
}

TEST(ExitWithStatusDeathTest, MinusOneIsTheStatusOfBrokenMetadata) {
    EXPECT_EXIT(exitWithStatus(brokenMetadataStatus), isBrokenMetadata, "");
}

TEST(Print, WritesEveryByteToStandardOutput) {
    testing::internal::CaptureStdout();
    print(std::string_view("a\0%s b", 6));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), std::string("a\0%s b", 6));
}

}  // namespace
}  // namespace metagen

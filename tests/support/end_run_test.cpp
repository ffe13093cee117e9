#include "support/end_run.h"

#include <gtest/gtest.h>

#include <string>

#include "support/exit_status.h"

namespace metagen {
namespace {

TEST(Print, WritesEveryByteToStandardOutput) {
    testing::internal::CaptureStdout();
    print(std::string_view("a\0%s b", 6));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), std::string("a\0%s b", 6));
}

TEST(EndRunDeathTest, PrintsTheTextAndEndsWithTheStatus) {
    const auto endAfterPrinting = [](int status) {
        showOutputAtExit();
        print("before, ");
        endRun(status, "at the end %s");
    };
    EXPECT_EXIT(endAfterPrinting(7), testing::ExitedWithCode(7), "^before, at the end %s$");
    EXPECT_EXIT(endAfterPrinting(brokenMetadataStatus), isBrokenMetadata,
                "^before, at the end %s$");
}

TEST(RequireOrExit, DoesNothingWhenTheConditionHolds) {
    requireOrExit(true, "Could not open file");
    SUCCEED();
}

TEST(RequireOrExitDeathTest, WritesTheMessageWithoutALineFeedAndEndsWithOne) {
    EXPECT_EXIT(requireOrExit(false, "Could not open the file - a%s.json"),
                testing::ExitedWithCode(1), "^Could not open the file - a%s\\.json$");
}

TEST(RequireOrExitDeathTest, KeepsWhatWasPrinted) {
    const auto endAfterPrinting = [] {
        showOutputAtExit();
        print("printed");
        requireOrExit(false, "the message, ");
    };
    EXPECT_EXIT(endAfterPrinting(), testing::ExitedWithCode(1), "^the message, printed$");
}

}  // namespace
}  // namespace metagen

#include <gtest/gtest.h>
#include <unistd.h>

#include <optional>
#include <string>
#include <thread>

#include "support/platform.h"
#include "support/text_file.h"

namespace metagen {
namespace {

/// Opened past the check for folders: its first read fails.
File openFolder() { return File(std::fopen("/", "r")); }

TEST(TextFileOnPosix, WhatCanNotBeReadGivesNothing) {
    EXPECT_EQ(readAll(openFolder().get()), std::nullopt);
}

TEST(TextFileOnPosixDeathTest, WhatCanNotBeReadEndsTheProcess) {
    EXPECT_EXIT(readOrExit(openFolder(), "unreadable %s"), testing::ExitedWithCode(1),
                "^unreadable %s$");
}

TEST(TextFileOnPosix, APipeIsReadWholeAlthoughItsSizeIsNotKnown) {
    std::string text;
    for (int number = 0; number < 50'000; ++number) text += std::to_string(number);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    std::thread writer([&] { writeAll(File(fdopen(ends[1], "w")).get(), text); });
    const File reader(fdopen(ends[0], "r"));
    EXPECT_EQ(sizeOf(reader.get()), 0U);
    EXPECT_EQ(readAll(reader.get()), text);
    writer.join();
}

}  // namespace
}  // namespace metagen

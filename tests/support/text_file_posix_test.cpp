#include <gtest/gtest.h>
#include <unistd.h>

#include <optional>
#include <string>
#include <thread>

#include "support/text_file.h"

namespace metagen {
namespace {

TEST(TextFileOnPosix, WhatCanNotBeReadGivesNothing) {
    // Opened past the check for folders: a folder's first read fails.
    const File folder(std::fopen("/", "r"));
    ASSERT_NE(folder, nullptr);
    EXPECT_FALSE(readAll(folder.get()).has_value());
}

TEST(TextFileOnPosix, APipeIsReadWholeAlthoughItsSizeIsNotKnown) {
    std::string text;
    for (int number = 0; number < 50'000; ++number) text += std::to_string(number);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    std::thread writer([&] { writeAll(File(fdopen(ends[1], "w")).get(), text); });
    const std::optional<FileText> read = readAll(File(fdopen(ends[0], "r")).get());
    writer.join();
    EXPECT_EQ(read.value().view(), text);
}

}  // namespace
}  // namespace metagen

#include <gtest/gtest.h>

#include "support/text_file.h"

namespace metagen {
namespace {

TEST(TextFileOnPosix, WhatCanNotBeReadGivesNothing) {
    // Opened past the check for folders: a folder's first read fails.
    const File folder(std::fopen("/", "r"));
    ASSERT_NE(folder, nullptr);
    EXPECT_FALSE(readAll(folder.get()).has_value());
}

}  // namespace
}  // namespace metagen

// The bytes of binary files, for the tests of what writes them.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "model/obstream.h"

namespace metagen {

/// The file's bytes; the file is removed.
inline std::string takeBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(file), {});
    file.close();
    static_cast<void>(std::remove(path.c_str()));
    return bytes;
}

/// The name of a file that belongs to the running test alone, in the folder that it runs in.
inline std::string pathOfThisTest() {
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    return std::string(test.test_suite_name()) + "." + test.name() + ".bin";
}

/// What the writes to a binary file leave in it.
template <typename Writes>
std::string fileBytesOf(const Writes& writes) {
    const std::string path = pathOfThisTest();
    {
        BinaryFile out(path, std::ios::binary);
        writes(out);
    }
    return takeBytes(path);
}

/// A literal whole, with the NULs that it holds.
template <std::size_t length>
std::string bytes(const char (&text)[length]) {
    return std::string(text, length - 1);
}

}  // namespace metagen

#include "support/json_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace metagen::json {
namespace {

/// Writes the text to a file and parses it as a document.
std::string parsed(const std::string& text) {
    const std::string path = testing::TempDir() + "metagen_json_file_test.json";
    writeAll(openForWriting(path.c_str()).get(), text);
    File file = openForReading(path.c_str());
    std::filesystem::remove(path);
    return compactText(parseFileOrExit(std::move(file), "unreadable", "malformed %s"));
}

TEST(ParseFileOrExit, GivesTheDocument) { EXPECT_EQ(parsed(" {\"a\": 1}\n"), "{\"a\":1}"); }

TEST(ParseFileOrExitDeathTest, EndsTheProcessForABrokenDocument) {
    EXPECT_EXIT(parsed("{"), testing::ExitedWithCode(1), "^malformed %s$");
    EXPECT_EXIT(parsed(""), testing::ExitedWithCode(1), "^malformed %s$");
}

}  // namespace
}  // namespace metagen::json

#include "support/json_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace metagen::json {
namespace {

/// A file in the tests' temporary folder, removed after use: not before, since Windows keeps the
/// file of an open document.
class ParseFileOrExit : public testing::Test {
protected:
    ~ParseFileOrExit() override { std::filesystem::remove(path); }

    /// Writes the text to the file and parses it as a document.
    std::string parsed(const std::string& text) const {
        writeAll(openForWriting(path.c_str()).get(), text);
        return compactText(
            parseFileOrExit(openForReading(path.c_str()), "unreadable %s", "malformed %s"));
    }

private:
    std::string path = testing::TempDir() + "metagen_json_file_test_" +
                       testing::UnitTest::GetInstance()->current_test_info()->name() + ".json";
};

using ParseFileOrExitDeathTest = ParseFileOrExit;

TEST_F(ParseFileOrExit, GivesTheDocument) { EXPECT_EQ(parsed(" {\"a\": 1}\n"), "{\"a\":1}"); }

TEST_F(ParseFileOrExitDeathTest, EndsTheProcessForABrokenDocument) {
    EXPECT_EXIT(parsed("{"), testing::ExitedWithCode(1), "^malformed %s$");
    EXPECT_EXIT(parsed(""), testing::ExitedWithCode(1), "^malformed %s$");
}

TEST(ObjectOrExit, GivesTheObject) {
    const Value object{Object()};
    EXPECT_EQ(&objectOrExit(object, "no object"), &asObject(object));
}

TEST(ObjectOrExitDeathTest, EndsTheProcessForAnyOtherKind) {
    for (const char* text : {"[{}]", "null", "1", "\"{}\""}) {
        EXPECT_EXIT(objectOrExit(*parse(text), "no object %s"), testing::ExitedWithCode(1),
                    "^no object %s$")
            << text;
    }
}

}  // namespace
}  // namespace metagen::json

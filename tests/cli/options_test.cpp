#include "cli/options.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace metagen {
namespace {

/// The four slots, "." for one that is not given.
std::string slots(std::initializer_list<const char*> arguments) {
    const std::vector<const char*> words(arguments);
    const Options options = readOptions(words);
    std::string text;
    for (const char* value : {options.input, options.output, options.left, options.right}) {
        text += value == nullptr ? "." : value;
        text += '|';
    }
    return text;
}

TEST(Options, AreReadInPairs) {
    EXPECT_EQ(slots({"-i", "a", "-o", "b", "-l", "c", "-r", "d"}), "a|b|c|d|");
    EXPECT_EQ(slots({}), ".|.|.|.|");
}

TEST(Options, AnOddLastArgumentIsIgnored) {
    EXPECT_EQ(slots({"-o"}), ".|.|.|.|");
    EXPECT_EQ(slots({"-i", "a", "-o"}), "a|.|.|.|");
}

TEST(Options, TheLastOfEqualOptionsWins) { EXPECT_EQ(slots({"-o", "a", "-o", "b"}), ".|b|.|.|"); }

TEST(Options, AValueMayLookLikeAnOption) { EXPECT_EQ(slots({"-o", "-i", "-i", "x"}), "x|-i|.|.|"); }

TEST(Options, AnUnknownNameIsSkippedWithItsValue) {
    EXPECT_EQ(slots({"-x", "-i", "-o", "b"}), ".|b|.|.|");
    EXPECT_EQ(slots({"-ix", "a", "-I", "b", "--o", "c", "", "d"}), ".|.|.|.|");
}

TEST(Options, AStrayWordShiftsEveryLaterPair) {
    EXPECT_EQ(slots({"foo", "-o", "out.json"}), ".|.|.|.|");
    EXPECT_EQ(slots({"foo", "-o", "-i", "-o"}), "-o|.|.|.|");
}

TEST(CommandWord, FoldsAsciiLettersOnly) {
    EXPECT_EQ(foldCommandWord("DuMp"), "dump");
    EXPECT_EQ(foldCommandWord("@AZ[_1\xc3\x84"), "@az[_1\xc3\x84");
}

}  // namespace
}  // namespace metagen

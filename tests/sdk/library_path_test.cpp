#include "sdk/library_loader.h"

#include <gtest/gtest.h>

namespace metagen {
namespace {

std::string split(std::string_view path) {
    const LibraryPath parts = splitLibraryPath(path);
    return parts.directory + "|" + parts.file;
}

TEST(LibraryPath, SplitsAtTheLastSeparatorOfEitherKind) {
    EXPECT_EQ(split("C:\\sdk\\bin\\x.dll"), "C:\\sdk\\bin|x.dll");
    EXPECT_EQ(split("/sdk\\bin/x.so"), "/sdk\\bin|x.so");
    EXPECT_EQ(split("/sdk/bin\\x.so"), "/sdk/bin|x.so");
}

TEST(LibraryPath, WithoutSeparatorEverythingIsTheFile) {
    EXPECT_EQ(split("x.dll"), "|x.dll");
    EXPECT_EQ(split(""), "|");
}

TEST(LibraryPath, APathThatEndsInASeparatorNamesNoFile) { EXPECT_EQ(split("/sdk/"), "/sdk|"); }

TEST(LibraryPath, DropsARunOfSeparatorsAtTheFoldersEnd) { EXPECT_EQ(split("a//\\/b"), "a|b"); }

TEST(LibraryPath, AFolderOfSeparatorsOnlyKeepsOne) {
    EXPECT_EQ(split("/x"), "/|x");
    EXPECT_EQ(split("\\\\\\x"), "\\|x");
}

TEST(LibraryFolder, EndsInOneSeparator) {
    EXPECT_EQ(libraryFolder("C:\\sdk", false, '\\'), "C:\\sdk\\");
    EXPECT_EQ(libraryFolder("/sdk/", false, '/'), "/sdk/");
    EXPECT_EQ(libraryFolder("/sdk//\\/", false, '/'), "/sdk/");
}

TEST(LibraryFolder, AppendsTheBinFolder) {
    EXPECT_EQ(libraryFolder("C:\\sdk\\", true, '\\'), "C:\\sdk\\bin\\");
    EXPECT_EQ(libraryFolder("/sdk", true, '/'), "/sdk/bin/");
}

TEST(LibraryFolder, AValueWithoutAFolderIsNotUsed) {
    EXPECT_EQ(libraryFolder("", false, '/'), std::nullopt);
    EXPECT_EQ(libraryFolder("\\\\", false, '\\'), std::nullopt);
    EXPECT_EQ(libraryFolder("/\\/", true, '/'), std::nullopt);
}

TEST(TrailingLineBreaks, AreRemovedHoweverMany) {
    EXPECT_EQ(withoutTrailingLineBreaks("Module not found.\r\n\n\r"), "Module not found.");
    EXPECT_EQ(withoutTrailingLineBreaks("two\nlines"), "two\nlines");
    EXPECT_EQ(withoutTrailingLineBreaks("\r\n"), "");
}

TEST(SystemErrorText, PutsTheMessageInBrackets) {
    EXPECT_EQ(systemErrorText("Qyra_getSDKVersion", "Procedure not found.", 127),
              "Qyra_getSDKVersion [Procedure not found.]");
}

TEST(SystemErrorText, GivesTheNumberWhereThereIsNoMessage) {
    EXPECT_EQ(systemErrorText("Cannot load", "", 4294967295), "Cannot load [4294967295]");
}

TEST(SystemErrorText, IsCutTo1023Bytes) {
    const std::string text = systemErrorText("p", std::string(2000, 'm'), 0);
    EXPECT_EQ(text, "p [" + std::string(1020, 'm'));
}

}  // namespace
}  // namespace metagen

#include "support/text_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/platform.h"
#include "support/temporary_file.h"

namespace metagen {
namespace {

class TextFile : public ::testing::Test {
protected:
    std::string read() const { return place.read(); }

    const testing::TemporaryFile place = testing::TemporaryFile("file");
    const std::string path = place.path();
};

TEST_F(TextFile, ReadsWhatWasWritten) {
    std::string text(300'000, 'x');
    text += "\nend";
    writeAll(openForWriting(path.c_str()).get(), text);
    EXPECT_EQ(read(), text);
}

TEST_F(TextFile, AnEmptyFileIsAnEmptyText) {
    writeAll(openForWriting(path.c_str()).get(), "");
    EXPECT_EQ(read(), "");
}

TEST_F(TextFile, WritingTruncates) {
    writeAll(openForWriting(path.c_str()).get(), "long text");
    writeAll(openForWriting(path.c_str()).get(), "short");
    EXPECT_EQ(read(), "short");
}

TEST_F(TextFile, PiecesAreWrittenOneBehindTheOther) {
    std::string text;
    {
        const File file = openForWriting(path.c_str());
        for (const std::size_t length : {3U, 0U, 65'000U, 1'000U, 200'000U, 1U}) {
            const std::string piece(length, static_cast<char>('a' + length % 26));
            writeAll(file.get(), piece);
            text += piece;
        }
    }
    EXPECT_EQ(read(), text);
}

TEST_F(TextFile, ReadsTheRest) {
    writeAll(openForWriting(path.c_str()).get(), "first, rest");
    const File file = openForReading(path.c_str());
    EXPECT_EQ(std::fgetc(file.get()), 'f');
    EXPECT_EQ(readAll(file.get()), "irst, rest");
    EXPECT_EQ(readAll(file.get()), "");
}

TEST_F(TextFile, BytesStayAsTheyAre) {
    writeAll(openForWriting(path.c_str(), "wb").get(), std::string_view("a\n\0\r\n", 5));
    EXPECT_EQ(std::filesystem::file_size(path), 5U);
    EXPECT_EQ(sizeOf(openForReading(path.c_str()).get()), 5U);
}

TEST_F(TextFile, ASizeIsTheNumberOfBytes) {
    for (const std::size_t size : {0U, 1U, 70'000U}) {
        writeAll(openForWriting(path.c_str()).get(), std::string(size, 'x'));
        EXPECT_EQ(sizeOf(openForReading(path.c_str()).get()), size);
    }
}

TEST_F(TextFile, AMissingFileOrFolderCanNotBeOpened) {
    EXPECT_EQ(openForReading(path.c_str()), nullptr);
    EXPECT_EQ(openForWriting((path + "/in/no/folder").c_str()), nullptr);
}

TEST_F(TextFile, AFolderCanNotBeOpened) {
    std::filesystem::create_directory(path);
    EXPECT_EQ(openForReading(path.c_str()), nullptr);
    EXPECT_EQ(openForWriting(path.c_str()), nullptr);
}

}  // namespace
}  // namespace metagen

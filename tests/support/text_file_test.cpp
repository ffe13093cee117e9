#include "support/text_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <random>
#include <string>

namespace metagen {
namespace {

/// A path in the tests' temporary folder that no other test has, run beside this one or not;
/// removed after use.
class TextFile : public testing::Test {
protected:
    TextFile()
        : path(testing::TempDir() + "metagen_text_file_" + std::to_string(std::random_device()())) {
    }
    ~TextFile() override { std::filesystem::remove_all(path); }

    std::string read() const {
        const std::optional<FileText> text = readAll(openForReading(path.c_str()).get());
        return std::string(text.value().view());
    }

    std::string path;
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
        PieceWriter writer(file.get());
        for (const std::size_t length : {3U, 0U, 65'000U, 1'000U, 200'000U, 1U}) {
            const std::string piece(length, static_cast<char>('a' + length % 26));
            writer.append(piece);
            text += piece;
        }
        writer.finish();
    }
    EXPECT_EQ(read(), text);
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

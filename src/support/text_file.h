// Whole text files: opened by name, read or written in one go, in the platform's text mode.
#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace metagen {

struct FileCloser {
    void operator()(std::FILE* file) const noexcept;
};

/// An open file, closed when it goes out of scope. A failure to close is not reported.
using File = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a text file for reading; null when that fails or the path names a folder.
File openForReading(const char* path);

/// Creates or truncates a text file; null when that fails.
File openForWriting(const char* path);

/// The number of bytes that the file holds, as far as the system knows; 0 for what has no size.
std::size_t sizeOf(std::FILE* file);

/// The text of a file. A std::string would clear its memory before the file's bytes come in, which
/// takes as long as reading them.
class FileText {
public:
    std::string_view view() const { return {bytes.get(), size}; }

private:
    friend std::optional<FileText> readAll(std::FILE* file);

    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
};

/// The rest of the file from where it stands; nothing when reading fails.
std::optional<FileText> readAll(std::FILE* file);

/// The rest of the file, which is then closed. When reading fails, the message on standard error
/// ends the process with status 1.
std::string readOrExit(File file, const std::string& message);

/// Writes the whole text. A full device goes unnoticed, as the tool's users know it.
void writeAll(std::FILE* file, std::string_view text);

/// Writes a text that comes in pieces. The file's own buffer is small: it would take a call of the
/// system for every few pieces, or one piece as large as the whole text.
class PieceWriter {
public:
    /// Borrows the file.
    explicit PieceWriter(std::FILE* outputFile) : file(outputFile) {}

    void append(std::string_view piece);

    /// Writes what is still held back.
    void finish();

private:
    std::FILE* file;
    std::string pieces;
};

}  // namespace metagen

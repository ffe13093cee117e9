// Whole files: opened by name, read or written in one go, texts in the platform's text mode.
#pragma once

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

/// Opens a file of text, or (mode "rb") of bytes that stay as they are, for reading; null when that
/// fails or the path names a folder.
File openForReading(const char* path, const char* mode = "r");

/// Creates or truncates a file, of text or (mode "wb") of bytes that stay as they are; null when
/// that fails.
File openForWriting(const char* path, const char* mode = "w");

/// The rest of the file; nothing when reading fails.
std::optional<std::string> readAll(std::FILE* file);

/// The rest of the file, which is then closed. When reading fails, the message on standard error
/// ends the process with status 1.
std::string readOrExit(File file, std::string_view message);

/// Writes the whole text. A full device goes unnoticed, as the tool's users know it.
void writeAll(std::FILE* file, std::string_view text);

}  // namespace metagen

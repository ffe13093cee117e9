#include "support/text_file.h"

#include <algorithm>
#include <utility>

#include "support/end_run.h"
#include "support/memory.h"
#include "support/platform.h"

namespace metagen {

void FileCloser::operator()(std::FILE* file) const noexcept {
    static_cast<void>(std::fclose(file));
}

// The names are UTF-8, on Windows by the program's manifest.
File openForReading(const char* path, const char* mode) {
    File file(std::fopen(path, mode));
    if (file != nullptr && isFolder(file.get())) return nullptr;  // its first read would fail
    return file;
}

File openForWriting(const char* path, const char* mode) { return File(std::fopen(path, mode)); }

std::optional<std::string> readAll(std::FILE* file) {
    constexpr std::size_t smallestRead = std::size_t{1} << 12U;
    // One more than the size, so that the end shows at once.
    std::string text;
    reserveText(text, std::max(sizeOf(file) + 1, smallestRead));
    text.resize(text.capacity());
    std::size_t size = 0;
    while ((size += std::fread(&text[size], 1, text.size() - size, file)) == text.size()) {
        text.resize(2 * text.size());  // it has grown, or is of no known size
    }
    if (std::ferror(file) != 0) return std::nullopt;
    text.resize(size);
    return text;
}

std::string readOrExit(File file, std::string_view message) {
    std::optional<std::string> text = readAll(file.get());
    requireOrExit(text.has_value(), message);
    return std::move(*text);
}

void writeAll(std::FILE* file, std::string_view text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), file));
}

}  // namespace metagen

#include "support/text_file.h"

namespace metagen {

void FileCloser::operator()(std::FILE* file) const noexcept {
    static_cast<void>(std::fclose(file));
}

std::optional<std::string> readAll(std::FILE* file) {
    constexpr std::size_t smallestRead = std::size_t{1} << 16U;
    std::string text;
    std::size_t length = 0;
    while (true) {
        if (text.size() - length < smallestRead) text.resize(text.size() * 2 + smallestRead);
        const std::size_t count = std::fread(text.data() + length, 1, text.size() - length, file);
        length += count;
        if (count == 0) break;
    }
    if (std::ferror(file) != 0) return std::nullopt;
    text.resize(length);
    return text;
}

void writeAll(std::FILE* file, std::string_view text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), file));
}

}  // namespace metagen

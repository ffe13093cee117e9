#include "support/text_file.h"

#include <algorithm>

namespace metagen {

void FileCloser::operator()(std::FILE* file) const noexcept {
    static_cast<void>(std::fclose(file));
}

std::optional<std::string> readAll(std::FILE* file) {
    constexpr std::size_t smallestRead = std::size_t{1} << 12U;
    std::string text;
    std::size_t length = 0;
    std::size_t wanted = sizeOf(file) + 1;  // one more, so that the file's end shows at once
    do {
        text.resize(length + std::max(wanted, smallestRead));
        const std::size_t count = std::fread(text.data() + length, 1, text.size() - length, file);
        length += count;
        wanted = length;  // a file without a size is read in doubling steps
    } while (length == text.size());
    text.resize(length);
    if (std::ferror(file) != 0) return std::nullopt;
    return text;
}

void writeAll(std::FILE* file, std::string_view text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), file));
}

}  // namespace metagen

#include "support/text_file.h"

#include <algorithm>
#include <utility>

#include "support/process_end.h"

namespace metagen {

void FileCloser::operator()(std::FILE* file) const noexcept {
    static_cast<void>(std::fclose(file));
}

std::optional<FileText> readAll(std::FILE* file) {
    constexpr std::size_t smallestRead = std::size_t{1} << 12U;
    FileText text;
    std::size_t capacity = 0;
    std::size_t wanted = sizeOf(file) + 1;  // one more, so that the file's end shows at once
    do {
        capacity += std::max(wanted, smallestRead);
        std::unique_ptr<char[]> larger = std::make_unique_for_overwrite<char[]>(capacity);
        std::copy_n(text.bytes.get(), text.size, larger.get());
        text.bytes = std::move(larger);
        text.size += std::fread(text.bytes.get() + text.size, 1, capacity - text.size, file);
        wanted = text.size;  // a file without a size is read in doubling steps
    } while (text.size == capacity);
    if (std::ferror(file) != 0) return std::nullopt;
    return text;
}

std::string readOrExit(File file, const std::string& message) {
    std::string text(sizeOf(file.get()) + 1, '\0');  // one more, so that the end shows at once
    std::size_t size = 0;
    while ((size += std::fread(&text[size], 1, text.size() - size, file.get())) == text.size()) {
        text.resize(2 * text.size());  // it has grown, or is of no known size
    }
    requireOrExit(std::ferror(file.get()) == 0, "%s", message.c_str());
    text.resize(size);
    return text;
}

void writeAll(std::FILE* file, std::string_view text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), file));
}

void PieceWriter::append(std::string_view piece) {
    constexpr std::size_t usefulSize = std::size_t{1} << 16U;
    pieces += piece;
    if (pieces.size() >= usefulSize) finish();
}

void PieceWriter::finish() {
    writeAll(file, pieces);
    pieces.clear();
}

}  // namespace metagen

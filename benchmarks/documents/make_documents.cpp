// Writes base.json, revised.json and stripped.json of the invented SDK into a folder:
// make_documents <scale> <seed> <folder>.
#include <charconv>
#include <cstdio>
#include <string>
#include <string_view>

#include "benchmarks/documents/base_writer.h"
#include "benchmarks/documents/stripped_writer.h"
#include "support/text_file.h"

namespace {

template <typename Number>
bool readNumber(std::string_view text, Number& number) {
    const char* end = text.data() + text.size();
    return std::from_chars(text.data(), end, number).ptr == end;
}

bool write(const std::string& path, const std::string& text) {
    const metagen::File file = metagen::openForWriting(path.c_str());
    if (file == nullptr) {
        std::perror(path.c_str());
        return false;
    }
    metagen::writeAll(file.get(), text);
    return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    metagen::invented::Extent extent;
    if (argumentCount != 4 || !readNumber(arguments[1], extent.scale) ||
        !readNumber(arguments[2], extent.seed)) {
        static_cast<void>(std::fputs("make_documents <scale> <seed> <folder>\n", stderr));
        return 2;
    }
    const metagen::invented::InventedSdk sdk(extent);
    const std::string folder = std::string(arguments[3]) + '/';
    const bool written = write(folder + "base.json", baseDocument(sdk)) &&
                         write(folder + "revised.json", revisedDocument(sdk)) &&
                         write(folder + "stripped.json", strippedDocument(sdk));
    return written ? 0 : 1;
}

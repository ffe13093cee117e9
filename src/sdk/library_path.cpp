#include "sdk/library_loader.h"

namespace metagen {

namespace {

constexpr std::string_view separators = "/\\";

std::string_view withoutTrailingSeparators(std::string_view path) {
    const std::size_t last = path.find_last_not_of(separators);
    return last == std::string_view::npos ? std::string_view() : path.substr(0, last + 1);
}

}  // namespace

LibraryPath splitLibraryPath(std::string_view path) {
    const std::size_t last = path.find_last_of(separators);
    if (last == std::string_view::npos) return {.directory = "", .file = std::string(path)};
    std::string_view directory = withoutTrailingSeparators(path.substr(0, last + 1));
    if (directory.empty()) directory = path.substr(0, 1);
    return {.directory = std::string(directory), .file = std::string(path.substr(last + 1))};
}

std::optional<std::string> libraryFolder(std::string_view value, bool appendBin, char separator) {
    const std::string_view folder = withoutTrailingSeparators(value);
    if (folder.empty()) return std::nullopt;
    std::string path(folder);
    path += separator;
    if (appendBin) {
        path += "bin";
        path += separator;
    }
    return path;
}

std::string_view withoutTrailingLineBreaks(std::string_view text) {
    const std::size_t last = text.find_last_not_of("\r\n");
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string systemErrorText(std::string_view prefix, std::string_view message,
                            unsigned long errorNumber) {
    constexpr std::size_t longestText = 1023;
    std::string text(prefix);
    text += " [";
    text += message.empty() ? std::to_string(errorNumber) : std::string(message);
    text += ']';
    if (text.size() > longestText) text.resize(longestText);
    return text;
}

}  // namespace metagen

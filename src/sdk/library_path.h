// Where the SDK's library may lie: the rules for paths, the same on every platform.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace metagen {

/// A path cut at its last "/" or "\".
struct LibraryPath {
    std::string directory;  ///< without separators at its end, unless it is one; may be empty
    std::string file;       ///< empty: the library's own name
};

LibraryPath splitLibraryPath(std::string_view path);

/// The folder that an environment variable's value names, as a path that ends in a separator (so
/// that it names no file), with the bin folder appended on request. Nothing when the value holds
/// nothing but separators.
std::optional<std::string> libraryFolder(std::string_view value, bool appendBin, char separator);

/// The text without the carriage returns and line feeds at its end.
std::string_view withoutTrailingLineBreaks(std::string_view text);

/// "prefix [message]", or "prefix [number]" when the system has no message for the error. Cut to
/// 1,023 bytes, the bound that users of these texts know.
std::string systemErrorText(std::string_view prefix, std::string_view message,
                            unsigned long errorNumber);

}  // namespace metagen

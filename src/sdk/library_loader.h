// Loading a shared library and finding its entry points, behind one interface for all platforms.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "sdk/entry_point_table.h"

namespace metagen {

/// A loaded library, opaque; null when nothing could be loaded.
using LibraryHandle = void*;

/// Loads the SDK's library from the folder that the environment variable names: from the folder
/// itself, or from the bin folder in it. Null when the variable is unset or unusable, or the
/// library can't be loaded from there.
LibraryHandle loadFromEnvironment(const char* variable, bool appendBin);

/// Loads the SDK's library by the system's own search, with no folder given.
LibraryHandle loadFromSystem();

/// The address of an entry point, or null.
AnyEntryPoint findEntryPoint(LibraryHandle library, const char* name);

void unloadLibrary(LibraryHandle library);

/// The system's text for the last failure of the functions above, in the form of
/// `systemErrorText`. Ask once, right after the failure: asking may forget it.
std::string lastLoadErrorText(const char* prefix);

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

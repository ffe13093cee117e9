// Loading a shared library and finding its entry points, behind one interface for all platforms.
#pragma once

#include <string>

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

}  // namespace metagen

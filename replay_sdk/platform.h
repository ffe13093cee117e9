// What the replay SDK asks of the system: its settings, the place of its own file, and opening
// files. All texts and paths are UTF-8 on every platform, whatever code page the process has.
#pragma once

#include <string>

#include "support/text_file.h"

namespace metagen::replay {

/// The variable's value; empty when it is unset.
std::string environmentVariable(const char* name);

/// The folder in which this library's file lies, with a separator at its end; empty when the
/// system doesn't tell.
std::string libraryFolder();

/// Opens a file whose bytes count, without any text mode; null and errno when that fails. On some
/// systems a folder opens too, and fails on the first read.
File openBytesForReading(const std::string& path);

/// Creates or truncates a file for bytes; null and errno when that fails.
File openBytesForWriting(const std::string& path);

}  // namespace metagen::replay

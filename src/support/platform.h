// What the systems do each in their own way.
#pragma once

#include <cstddef>
#include <cstdio>

namespace metagen {

/// Gives a standard stream that is closed a place that swallows everything: otherwise the next file
/// that is opened would take its number, and what the tool prints would end up in an output. From
/// now on what is written to a pipe without a reader is lost, and doesn't end the process.
void prepareStandardStreams();

/// Ends the process at once, as abort() does, but with no text or dialog of the system's.
[[noreturn]] void abortProcess();

/// Whether standard output is a terminal that shows colours.
bool isColorTerminal();

/// Whether what was opened for reading is a folder.
bool isFolder(std::FILE* file);

/// The number of bytes that the file holds, as far as the system knows; 0 for what has no size.
std::size_t sizeOf(std::FILE* file);

/// Asks the system to keep memory that is still untouched in large pages, where it has such: to get
/// that of a document in small ones takes up to a fifth of the time of a command.
void preferLargePages(void* memory, std::size_t size);

}  // namespace metagen

// The orderly ends of the process that commands use when they can't go on.
#pragma once

#include <string_view>

namespace metagen {

/// Exit statuses. Broken metadata shows as 255 where the system keeps eight bits of a status.
inline constexpr int failureStatus = 1;
inline constexpr int brokenMetadataStatus = -1;

/// When the condition is false, writes the printf-style message to standard error, with no line
/// feed added, and ends the process with status 1. What was printed before is flushed.
#if defined(__GNUC__)
[[gnu::format(printf, 2, 3)]]
#endif
void requireOrExit(bool condition, const char* format, ...);

/// Writes the text to standard output as it is, embedded NULs included.
void print(std::string_view text);

/// Flushes standard output and ends the process with the status.
[[noreturn]] void exitWithStatus(int status);

}  // namespace metagen

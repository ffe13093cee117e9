// What the tool prints, and the ends of the process: the orderly ones that commands use when they
// can't go on, and the one by an exception that no command catches.
#pragma once

#include <string_view>

namespace metagen {

/// Exit statuses. Broken metadata shows as 255 where the system keeps eight bits of a status.
inline constexpr int failureStatus = 1;
inline constexpr int brokenMetadataStatus = -1;

/// Writes the text to standard output as it is, embedded NULs included.
void print(std::string_view text);

/// Prints the text, flushes standard output and ends the process with the status. Files written so
/// far stay as they are.
[[noreturn]] void endRun(int status, std::string_view text);

/// From now on endRun writes to standard error and ends the process with this status, whatever it
/// is given: for a program whose standard output holds nothing but its findings.
void endRunsAsFailureOf(std::string_view program, int status);

/// When the condition is false, writes the message to standard error as it is, with no line feed
/// added, and ends the process with status 1. What was printed before is flushed.
void requireOrExit(bool condition, std::string_view message);

/// From now on an exception that nobody catches ends the process abnormally: standard output is
/// flushed, the exception's text and a line feed go to standard error, and the process aborts.
void installAbnormalEnd();

}  // namespace metagen

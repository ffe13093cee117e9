// The process around the commands: its standard streams, and its end by an exception that no
// command catches.
#pragma once

namespace metagen {

/// Gives a standard stream that is closed a place that swallows everything: otherwise the next file
/// that is opened would take its number, and what the tool prints would end up in an output. From
/// now on what is written to a pipe without a reader is lost, and doesn't end the process.
void prepareStandardStreams();

/// From now on such an exception ends the process abnormally: standard output is flushed, the
/// exception's text and a line feed go to standard error, and the process aborts, without a
/// dialog of the system's.
void installAbnormalEnd();

/// Ends the process at once, as abort() does, but with no text or dialog of the system's.
[[noreturn]] void abortProcess();

}  // namespace metagen

// The standard streams of a process that was started without some of them, or whose readers go
// away.
#pragma once

namespace metagen {

/// Gives a standard stream that is closed a place that swallows everything: otherwise the next file
/// that is opened would take its number, and what the tool prints would end up in an output. From
/// now on what is written to a pipe without a reader is lost, and doesn't end the process.
void prepareStandardStreams();

}  // namespace metagen

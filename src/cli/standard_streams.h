// The standard streams of a process that was started without some of them.
#pragma once

namespace metagen {

/// Gives a standard stream that is closed a place that swallows everything. Otherwise the next file
/// that is opened would take its number, and what the tool prints would end up in an output.
void openMissingStandardStreams();

}  // namespace metagen

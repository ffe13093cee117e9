// The program behind main: usage, bringing the SDK up, options, dispatch and exit status.
#pragma once

namespace metagen {

/// Runs the command that the arguments name and returns the process's exit status: 0, or 1 when
/// the SDK can't be loaded or a file that the command needs is not named. A command that can't go
/// on ends the process itself. Messages go to standard output.
int runDriver(int argumentCount, const char* const* arguments);

}  // namespace metagen

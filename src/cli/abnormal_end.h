// The end of the process by an exception that no command catches.
#pragma once

namespace metagen {

/// From now on such an exception ends the process abnormally: standard output is flushed, the
/// exception's text and a line feed go to standard error, and the process aborts, without a
/// dialog of the system's.
void installAbnormalEnd();

/// Ends the process at once, as abort() does, but with no text or dialog of the system's.
[[noreturn]] void abortProcess();

}  // namespace metagen

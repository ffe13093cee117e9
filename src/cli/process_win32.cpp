#include <windows.h>

#include <cstdlib>

#include "cli/process.h"

namespace metagen {

namespace {

constexpr UINT statusOfAbort = 3;  // what the C library's abort() ends with

}  // namespace

// abort() itself would write a text of its own and may show a dialog, and not every C library here
// lets that be switched off.
void abortProcess() {
    TerminateProcess(GetCurrentProcess(), statusOfAbort);
    std::abort();  // not reached: a process may always terminate itself
}

// The C library there keeps the first three numbers for the standard streams, open or not, and
// knows no signal for a pipe without a reader.
void prepareStandardStreams() {}

}  // namespace metagen

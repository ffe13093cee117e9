#include <io.h>
#include <windows.h>

#include <cstdlib>

#include "support/platform.h"

namespace metagen {

namespace {

constexpr UINT statusOfAbort = 3;  // what the C library's abort() ends with

}  // namespace

// The C library there keeps the first three numbers for the standard streams, open or not, and
// knows no signal for a pipe without a reader.
void prepareStandardStreams() {}

// abort() itself would write a text of its own and may show a dialog, and not every C library here
// lets that be switched off.
void abortProcess() {
    TerminateProcess(GetCurrentProcess(), statusOfAbort);
    std::abort();  // not reached: a process may always terminate itself
}

// Not every console there understands the sequences, and none does before it is asked to.
bool isColorTerminal() { return false; }

// To open one fails by itself there.
bool isFolder(std::FILE* /*file*/) { return false; }

std::size_t sizeOf(std::FILE* file) {
    const auto length = _filelengthi64(_fileno(file));
    return length > 0 ? static_cast<std::size_t>(length) : 0;
}

// There they are a privilege that users have to be given.
void preferLargePages(void* /*memory*/, std::size_t /*size*/) {}

}  // namespace metagen

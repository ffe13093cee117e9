#include "cli/process.h"

#include <cstdio>
#include <exception>

namespace metagen {

namespace {

/// Writes the text of the exception in flight; nothing when there is none, or it is no standard
/// one.
void reportException() try {
    if (const std::exception_ptr exception = std::current_exception()) {
        std::rethrow_exception(exception);
    }
} catch (const std::exception& exception) {
    static_cast<void>(std::fprintf(stderr, "%s\n", exception.what()));
} catch (...) {
    static_cast<void>(std::fputs("unknown exception\n", stderr));
}

[[noreturn]] void endAbnormally() {
    static_cast<void>(std::fflush(stdout));
    reportException();
    abortProcess();
}

}  // namespace

void installAbnormalEnd() { std::set_terminate(endAbnormally); }

}  // namespace metagen

#include "support/end_run.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "support/platform.h"

namespace metagen {

namespace {

/// Of a program that tells the ends of its runs in a way of its own; no name: the tool.
struct Failure {
    std::string program;
    int status = 0;
};

Failure& failureOfProgram() {
    static Failure failure;
    return failure;
}

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

void print(std::string_view text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stdout));
}

void endRunsAsFailureOf(std::string_view program, int status) {
    failureOfProgram() = {std::string(program), status};
}

void endRun(int status, std::string_view text) {
    if (const Failure& failure = failureOfProgram(); !failure.program.empty()) {
        const std::string message = (failure.program + ": ").append(text);
        static_cast<void>(std::fwrite(message.data(), 1, message.size(), stderr));
        std::exit(failure.status);
    }
    print(text);
    static_cast<void>(std::fflush(stdout));
    std::exit(status);
}

void requireOrExit(bool condition, std::string_view message) {
    if (condition) return;
    static_cast<void>(std::fwrite(message.data(), 1, message.size(), stderr));
    endRun(failureStatus, "");
}

void installAbnormalEnd() { std::set_terminate(endAbnormally); }

}  // namespace metagen

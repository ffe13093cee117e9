#include "support/end_run.h"

#include <cstdio>
#include <cstdlib>
#include <string>

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

}  // namespace metagen

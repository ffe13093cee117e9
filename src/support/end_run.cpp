#include "support/end_run.h"

#include <cstdio>
#include <cstdlib>

namespace metagen {

void print(std::string_view text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stdout));
}

void endRun(int status, std::string_view text) {
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

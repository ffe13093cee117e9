#include "support/process_end.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace metagen {

void requireOrExit(bool condition, const char* format, ...) {
    if (condition) return;
    std::va_list arguments;
    va_start(arguments, format);
    static_cast<void>(std::vfprintf(stderr, format, arguments));
    va_end(arguments);
    exitWithStatus(failureStatus);
}

void print(std::string_view text) {
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stdout));
}

void exitWithStatus(int status) {
    static_cast<void>(std::fflush(stdout));
    std::exit(status);
}

}  // namespace metagen

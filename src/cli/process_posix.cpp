#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "cli/process.h"

namespace metagen {

void prepareStandardStreams() {
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    for (int number = STDIN_FILENO; number <= STDERR_FILENO; ++number) {
        if (fcntl(number, F_GETFD) != -1) continue;
        // The lowest free number is taken, and that is this one.
        static_cast<void>(open("/dev/null", number == STDIN_FILENO ? O_RDONLY : O_WRONLY));
    }
}

void abortProcess() { std::abort(); }

}  // namespace metagen

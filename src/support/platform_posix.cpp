#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "support/platform.h"

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

bool isColorTerminal() {
    const char* const terminal = std::getenv("TERM");
    const bool isDumb = terminal == nullptr || std::string_view(terminal) == "dumb";
    return !isDumb && std::getenv("NO_COLOR") == nullptr && isatty(STDOUT_FILENO) == 1;
}

bool isFolder(std::FILE* file) {
    struct stat status = {};
    return fstat(fileno(file), &status) == 0 && S_ISDIR(status.st_mode);
}

std::size_t sizeOf(std::FILE* file) {
    struct stat status = {};
    const bool known = fstat(fileno(file), &status) == 0 && S_ISREG(status.st_mode);
    return known ? static_cast<std::size_t>(status.st_size) : 0;
}

void preferLargePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#ifdef MADV_HUGEPAGE
    constexpr std::size_t largePage = std::size_t{1} << 21U;
    if (std::align(largePage, largePage, memory, size) == nullptr) return;  // it holds none
    static_cast<void>(madvise(memory, size - size % largePage, MADV_HUGEPAGE));
#endif
}

}  // namespace metagen

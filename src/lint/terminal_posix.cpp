#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "lint/terminal.h"

namespace metagen::lint {

bool isColorTerminal() {
    const char* const terminal = std::getenv("TERM");
    const bool isDumb = terminal == nullptr || std::string_view(terminal) == "dumb";
    return !isDumb && std::getenv("NO_COLOR") == nullptr && isatty(STDOUT_FILENO) == 1;
}

}  // namespace metagen::lint

// A small host application. It has the tables of metagen twice, compiled in and as files, prints
// what they hold, and tells whether they agree:
//
//     example_host <handlers.bin> <meta.bin> [plugin]
//
// With a plugin's name it prints everything about that one. The exit status is 0 when the tables
// agree, 1 when they differ, 2 when a file can't be read or the command line is wrong.

#include <cstdio>
#include <stdexcept>

#include "comparison.h"
#include "compiled_tables.h"
#include "metagen/host/load.h"
#include "report.h"

namespace {

using metagen::host::HandlerMeta;
using metagen::host::Meta;

constexpr int agreeStatus = 0;
constexpr int differStatus = 1;
constexpr int unusableStatus = 2;

/// Loads a table and says whether it is the same as the compiled one.
template <typename Tables>
bool agrees(const char* path, const Tables& compiled, Tables (*load)(std::string_view)) try {
    const std::vector<std::string> lines =
        example::differences(compiled, load(metagen::host::readFile(path)));
    for (const std::string& line : lines) std::printf("%s\n", line.c_str());
    return lines.empty();
} catch (const std::exception& exception) {
    throw std::runtime_error(std::string(path) + ": " + exception.what());
}

int compare(const char* handlersPath, const char* metaPath, const HandlerMeta& handlers,
            const Meta& meta) {
    const bool handlersAgree = agrees(handlersPath, handlers, metagen::host::loadHandlers);
    const bool metaAgrees = agrees(metaPath, meta, metagen::host::loadMeta);
    const bool agree = handlersAgree && metaAgrees;
    std::printf("The compiled-in and the loaded tables %s.\n", agree ? "agree" : "differ");
    return agree ? agreeStatus : differStatus;
}

int run(int argumentCount, char** arguments) {
    if (argumentCount < 3 || argumentCount > 4) {
        std::fputs("usage: example_host <handlers.bin> <meta.bin> [plugin]\n", stderr);
        return unusableStatus;
    }
    const HandlerMeta handlers = example::compiledHandlers();
    const Meta meta = example::compiledMeta();
    if (argumentCount == 3) {
        example::printOverview(handlers, meta);
    } else if (!example::printPlugin(arguments[3], handlers, meta)) {
        std::fprintf(stderr, "there is no plugin %s\n", arguments[3]);
        return unusableStatus;
    }
    return compare(arguments[1], arguments[2], handlers, meta);
}

}  // namespace

int main(int argumentCount, char** arguments) try {
    return run(argumentCount, arguments);
} catch (const std::exception& exception) {
    std::fprintf(stderr, "%s\n", exception.what());
    return unusableStatus;
}

// Reads tables as a host would, and tells where one is wrong: check-tables <table.bin>...
//
// The rules of metagen_generate_tables run it on what was just generated. The exit status is 0 when
// every table can be read, 1 otherwise.

#include <cstdio>
#include <exception>
#include <string>

#include "metagen/host/load.h"

namespace {

void load(const std::string& bytes) {
    if (bytes.compare(0, 4, "HDLR") == 0) {
        static_cast<void>(metagen::host::loadHandlers(bytes));
    } else {
        static_cast<void>(metagen::host::loadMeta(bytes));
    }
}

bool canBeRead(const char* path) try {
    load(metagen::host::readFile(path));
    return true;
} catch (const std::exception& exception) {
    static_cast<void>(std::fprintf(stderr, "%s: %s\n", path, exception.what()));
    return false;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    bool allCanBeRead = true;
    for (int index = 1; index < argumentCount; ++index) {
        if (!canBeRead(arguments[index])) allCanBeRead = false;
    }
    return allCanBeRead ? 0 : 1;
}

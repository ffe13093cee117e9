// The limit of what any library can do: a SIMD parser makes trees of the same documents.
//
//   limit <document>...
#include <cstdio>
#include <cstdlib>
#include <list>

#include <simdjson.h>

int main(int argumentCount, char** arguments) {
    std::list<simdjson::dom::parser> parsers;  // each keeps its tree
    for (int index = 1; index < argumentCount; ++index) {
        const auto error = parsers.emplace_back().load(arguments[index]).error();
        if (error == simdjson::SUCCESS) continue;
        static_cast<void>(
            std::fprintf(stderr, "%s: %s\n", arguments[index], simdjson::error_message(error)));
        return 1;
    }
    std::_Exit(0);
}

// Reads documents and makes trees of them as the tool does, and does nothing else.
//
//   parse <document>...
#include <cstdio>
#include <cstdlib>
#include <list>

#include "json/document.h"
#include "support/text_file.h"

int main(int argumentCount, char** arguments) {
    std::list<metagen::json::Document> documents;
    for (int index = 1; index < argumentCount; ++index) {
        metagen::File file = metagen::openForReading(arguments[index]);
        if (!file || !documents.emplace_back(metagen::readOrExit(std::move(file), "")).isValid()) {
            static_cast<void>(std::fprintf(stderr, "%s: not a document\n", arguments[index]));
            return 1;
        }
    }
    std::_Exit(0);
}

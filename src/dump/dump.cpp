#include "dump/dump.h"

#include <memory>

#include "metadata/base_document.h"
#include "support/end_run.h"
#include "support/text_file.h"

namespace metagen {

void dump(const char* outputPath) {
    const auto renderer = askOrExit([] { return std::make_unique<Renderer>(); });
    const File output = openForWriting(outputPath);
    requireOrExit(output != nullptr, "Could not open file");
    askOrExit([&] { return BaseDocument(*renderer); }).write(output.get());
}

}  // namespace metagen

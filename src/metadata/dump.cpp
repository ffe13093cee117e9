#include "metadata/dump.h"

#include <memory>

#include "metadata/base_document.h"
#include "support/process_end.h"
#include "support/text_file.h"

namespace metagen {

void dump(const char* outputPath) {
    const std::unique_ptr<Renderer> renderer = createRendererOrExit();
    const File output = openForWriting(outputPath);
    requireOrExit(output != nullptr, "Could not open file");
    readBaseDocument(*renderer).write(output.get());
}

}  // namespace metagen

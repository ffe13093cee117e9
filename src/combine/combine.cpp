#include "combine/combine.h"

#include <memory>
#include <string>
#include <utility>

#include "combine/checks.h"
#include "combine/combine_report.h"
#include "combine/merge.h"
#include "json/document.h"
#include "metadata/base_document.h"
#include "support/end_run.h"
#include "support/text_file.h"

namespace metagen {

void combine(const char* strippedPath, const char* outputPath) {
    const std::string notOpened = "Could not open the file - " + std::string(strippedPath);
    File strippedFile = openForReading(strippedPath);
    requireOrExit(strippedFile != nullptr, notOpened);
    File output = openForWriting(outputPath);
    requireOrExit(output != nullptr, "Failed to open the output");

    const json::Document stripped(readOrExit(std::move(strippedFile), notOpened));
    requireOrExit(stripped.isValid(), "the given json file has errors inside");
    const auto renderer = askOrExit([] { return std::make_unique<Renderer>(); });
    // Names that need escapes have none there: what they make of the document, the parser tells.
    const json::Document live(askOrExit([&] { return BaseDocument(*renderer).text(); }));
    requireOrExit(live.isValid(), "error in the dumped json");
    const json::Object strippedObject =
        json::objectOrExit(stripped.root(), "stripped json is not an object");
    const json::Object liveObject = json::objectOrExit(live.root(), "dumped json is not an object");

    CombineReport report;
    Arena arena;
    const json::Object document = merge(strippedObject, liveObject, arena, report);
    const std::string combined =
        combinedText(document, live.text().size() + stripped.text().size());
    checkNamesAndDefaults(document);
    checkTextureHandlers(document, report);
    print(summaryText(std::move(report)));
    writeAll(output.get(), combined);
    output.reset();  // before the renderer goes: an SDK that ends the process then loses nothing
}

}  // namespace metagen

#include "combine/combine.h"

#include <memory>
#include <utility>

#include "combine/combine_report.h"
#include "combine/combined_document.h"
#include "combine/documents.h"
#include "combine/merge.h"
#include "combine/name_checks.h"
#include "combine/summary.h"
#include "combine/texture_handler_checks.h"
#include "support/process_end.h"
#include "support/text_file.h"

namespace metagen {

void combine(const char* strippedPath, const char* outputPath) {
    File strippedFile = openForReading(strippedPath);
    requireOrExit(strippedFile != nullptr, "Could not open the file - %s", strippedPath);
    const File output = openForWriting(outputPath);
    requireOrExit(output != nullptr, "Failed to open the output");

    json::Value& stripped = readStrippedDocument(std::move(strippedFile), strippedPath);
    const std::unique_ptr<Renderer> renderer = createRendererOrExit();
    const LiveDocument live = readLiveDocument(*renderer, stripped);
    json::Object& strippedObject = strippedObjectOrExit(stripped);
    json::Object& document = liveObjectOrExit(live.tree);

    CombineReport report;
    merge(std::move(strippedObject), document, report);
    const CombinedDocument combined(document, live.otherPlugins);
    checkNamesAndDefaults(document);
    checkTextureHandlers(document, report);
    print(summaryText(std::move(report)));
    combined.write(output.get());
}

}  // namespace metagen

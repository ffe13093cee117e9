// A stripped and a live document through the merge, both checks, the summary and the writer.
#include <string>

#include "combine/combine_report.h"
#include "combine/combined_document.h"
#include "combine/merge.h"
#include "combine/name_checks.h"
#include "combine/summary.h"
#include "combine/texture_handler_checks.h"
#include "fuzz_target.h"
#include "support/json.h"
#include "support/process_end.h"

using namespace metagen;

namespace {

void combineDocuments(std::string_view input) {
    const auto [strippedText, liveText] = fuzz::twoDocuments(input);
    std::optional<json::Value> stripped = json::parse(strippedText);
    std::optional<json::Value> live = json::parse(liveText);
    if (!stripped || !live) return;
    json::Object& document = json::asObject(*live);

    CombineReport report;
    merge(std::move(json::asObject(*stripped)), document, report);
    const std::string combined = CombinedDocument(document).text();
    fuzz::require(combined.front() == '{' && combined.back() == '}', "the output is an object");
    checkNamesAndDefaults(document);
    checkTextureHandlers(document, report);
    print(summaryText(std::move(report)));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::runToItsEnd(combineDocuments, fuzz::textOf(data, size));
    return 0;
}

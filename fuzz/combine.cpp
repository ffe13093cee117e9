// A stripped and a live document through the merge, both checks, the summary and the writer.
#include <string>
#include <utility>

#include "combine/checks.h"
#include "combine/combine_report.h"
#include "combine/merge.h"
#include "fuzz_target.h"
#include "json/document.h"
#include "support/end_run.h"

using namespace metagen;

namespace {

void combineDocuments(std::string_view input) {
    const auto [strippedText, liveText] = fuzz::twoDocuments(input);
    const json::Document stripped{std::string(strippedText)};
    const json::Document live{std::string(liveText)};
    if (!stripped.isValid() || !live.isValid()) return;
    const std::string liveBefore = json::compactText(live.root());

    CombineReport report;
    Arena arena;
    const json::Object document =
        merge(json::asObject(stripped.root()), json::asObject(live.root()), arena, report);
    fuzz::require(json::compactText(live.root()) == liveBefore, "the live document stays");
    const std::string combined = combinedText(document);
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

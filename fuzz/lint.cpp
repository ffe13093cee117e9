// A stripped and a base document through all checks, all outputs and the fix.
#include <string>

#include "fuzz_target.h"
#include "lint/fix.h"
#include "lint/linter.h"
#include "lint/report.h"

using namespace metagen;

namespace {

void lintDocuments(std::string_view input) {
    const auto [strippedText, baseText] = fuzz::twoDocuments(input);
    const json::Document stripped{std::string(strippedText)};
    const json::Document base{std::string(baseText)};
    if (!lint::baseDocumentFault(base).empty()) return;
    const std::vector<lint::Finding> findings = lint::lint(stripped, base, &base);
    for (const lint::Finding& finding : findings) {
        fuzz::require(finding.offset <= stripped.text().size(), "a finding stands in its document");
    }
    const auto placed = lint::placed(stripped, findings);
    for (const auto format : {lint::Format::text, lint::Format::github}) {
        lint::report("a.json", placed, {.format = format});
    }
    for (const auto format : {lint::Format::json, lint::Format::sarif}) {
        const json::Document report(lint::report("a.json", placed, {.format = format}));
        fuzz::require(report.isValid(), "an output for programs is JSON");
    }
    if (!stripped.isValid() || !stripped.root().isObject()) return;
    const json::Document fixed(lint::fixedText(stripped, base, findings));
    fuzz::require(lint::fixedText(fixed, base, lint::lint(fixed, base)) == fixed.text(),
                  "a fix leaves nothing to fix");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    lintDocuments(fuzz::textOf(data, size));  // nothing ends it
    return 0;
}

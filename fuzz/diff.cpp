// Two documents compared: a report is empty exactly when they are equal.
#include "diff/diff.h"

#include <algorithm>
#include <string>

#include "fuzz_target.h"
#include "json/document.h"

using namespace metagen;

namespace {

void compareDocuments(std::string_view input) {
    const auto [leftText, rightText] = fuzz::twoDocuments(input);
    const json::Document leftDocument{std::string(leftText)};
    const json::Document rightDocument{std::string(rightText)};
    if (!leftDocument.isValid() || !rightDocument.isValid()) return;
    const json::Object left = json::asObject(leftDocument.root());
    const json::Object right = json::asObject(rightDocument.root());

    std::string report;
    diffObjects(left, right, report, "");
    fuzz::require(report.empty() == (leftDocument.root() == rightDocument.root()),
                  "equal documents have no differences");
    std::string swapped;
    diffObjects(right, left, swapped, "");
    fuzz::require(report.empty() == swapped.empty(), "sides don't matter");
    std::string none;
    diffObjects(left, left, none, "");
    fuzz::require(none.empty(), "a document equals itself");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::runToItsEnd(compareDocuments, fuzz::textOf(data, size));
    return 0;
}

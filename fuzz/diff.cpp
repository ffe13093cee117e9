// Two documents compared: a report is empty exactly when they are equal.
#include "diff/object_difference.h"

#include <algorithm>
#include <string>

#include "fuzz_target.h"
#include "support/json.h"

using namespace metagen;

namespace {

void compareDocuments(std::string_view input) {
    const auto [leftText, rightText] = fuzz::twoDocuments(input);
    const std::optional<json::Value> left = json::parse(leftText);
    const std::optional<json::Value> right = json::parse(rightText);
    if (!left || !right) return;

    std::string report;
    diffObjects(json::asObject(*left), json::asObject(*right), report, "");
    fuzz::require(report.empty() == (*left == *right), "equal documents have no differences");
    std::string swapped;
    diffObjects(json::asObject(*right), json::asObject(*left), swapped, "");
    fuzz::require(report.empty() == swapped.empty(), "sides don't matter");
    std::string none;
    diffObjects(json::asObject(*left), json::asObject(*left), none, "");
    fuzz::require(none.empty(), "a document equals itself");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::runToItsEnd(compareDocuments, fuzz::textOf(data, size));
    return 0;
}

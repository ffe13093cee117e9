#include "lint/finding.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <tuple>

namespace metagen::lint {

namespace {

/// Several checks may come to the same result.
void dropRepeated(std::vector<Finding>& found) {
    std::set<std::tuple<std::uint32_t, const Rule*, std::string>> known;
    std::erase_if(found, [&known](const Finding& finding) {
        return !known.emplace(finding.offset, finding.rule, finding.message).second;
    });
}

/// What an error at the same place says isn't passed over in silence.
void dropContradicted(std::vector<Finding>& found) {
    std::vector<std::uint32_t> errors;  // in order, as the findings are
    for (const Finding& finding : found) {
        if (finding.rule->severity == Severity::error) errors.push_back(finding.offset);
    }
    std::erase_if(found, [&errors](const Finding& finding) {
        return finding.rule == &rule::ignoredKind &&
               std::ranges::binary_search(errors, finding.offset);
    });
}

}  // namespace

std::string_view name(Severity severity) {
    constexpr std::array<std::string_view, 3> names = {"note", "warning", "error"};
    return names[static_cast<std::size_t>(severity)];
}

const Rule* findRule(std::string_view name) {
    const auto found = std::ranges::find(rule::all, name, &Rule::name);
    return found == rule::all.end() ? nullptr : *found;
}

std::vector<Finding> Findings::take() {
    std::ranges::stable_sort(found, {}, &Finding::offset);
    dropRepeated(found);
    dropContradicted(found);
    return std::exchange(found, {});
}

}  // namespace metagen::lint

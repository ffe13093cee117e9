#include "lint/nearest_name.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "lint/wording.h"

namespace metagen::lint {

namespace {

/// Names are shorter than that; longer ones are near to none.
constexpr std::size_t longestName = 64;

/// From how many letters on another name is no misspelling of this one.
std::size_t limitFor(std::string_view name) {
    return std::min<std::size_t>(name.size() / 3, 3) + 1;
}

}  // namespace

std::size_t editDistance(std::string_view left, std::string_view right, std::size_t limit) {
    if (left.size() > right.size()) std::swap(left, right);
    if (right.size() - left.size() >= limit || right.size() > longestName) return limit;
    std::array<std::array<std::size_t, longestName + 1>, 3> rows = {};
    std::iota(rows[0].begin(), rows[0].begin() + static_cast<std::ptrdiff_t>(right.size()) + 1, 0);
    for (std::size_t i = 1; i <= left.size(); ++i) {
        const auto& before = rows[(i - 1) % 3];
        const auto& twoBefore = rows[(i + 1) % 3];
        auto& row = rows[i % 3];
        row[0] = i;
        std::size_t smallest = i;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const char here = lowerCased(left[i - 1]);
            const char there = lowerCased(right[j - 1]);
            row[j] = std::min(
                {before[j] + 1, row[j - 1] + 1, before[j - 1] + (here == there ? 0U : 1U)});
            const bool isSwap = i > 1 && j > 1 && here == lowerCased(right[j - 2]) &&
                                lowerCased(left[i - 2]) == there;
            if (isSwap) row[j] = std::min(row[j], twoBefore[j - 2] + 1);
            smallest = std::min(smallest, row[j]);
        }
        if (smallest >= limit) return limit;
    }
    return std::min(limit, rows[left.size() % 3][right.size()]);
}

void NearestName::begin(std::string_view name) {
    wanted = name;
    best = {};
    bestDistance = limitFor(name);
}

void NearestName::consider(std::string_view candidate) {
    const std::size_t difference =
        std::max(wanted.size(), candidate.size()) - std::min(wanted.size(), candidate.size());
    const bool isFar = difference >= bestDistance || candidate.size() > longestName;
    const std::size_t steps = isFar ? 1 : 1 + wanted.size() * candidate.size();
    stepsLeft -= std::min(steps, stepsLeft);
    if (bestDistance == 0 || stepsLeft == 0) return;
    const std::size_t distance = editDistance(wanted, candidate, bestDistance);
    if (distance >= bestDistance) return;
    bestDistance = distance;
    best = candidate;
}

std::string_view NearestName::among(json::Object candidates, std::string_view name) {
    begin(name);
    for (const json::Member& candidate : candidates) {
        if (stepsLeft == 0) break;
        consider(candidate.key);
    }
    return nearest();
}

}  // namespace metagen::lint

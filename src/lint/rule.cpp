#include "lint/rule.h"

#include <algorithm>

namespace metagen::lint {

std::string_view name(Severity severity) {
    constexpr std::array<std::string_view, 3> names = {"note", "warning", "error"};
    return names[static_cast<std::size_t>(severity)];
}

const Rule* findRule(std::string_view name) {
    const auto found = std::ranges::find(rule::all, name, &Rule::name);
    return found == rule::all.end() ? nullptr : *found;
}

}  // namespace metagen::lint

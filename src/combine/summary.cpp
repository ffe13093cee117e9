#include "combine/combine_report.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "support/numbers.h"

namespace metagen {

namespace {

void appendCount(std::string& out, std::size_t count) {
    appendInteger(out, static_cast<std::int64_t>(count));
}

void appendSection(std::string& out, std::string_view heading,
                   const std::vector<std::string>& entries) {
    out += heading;
    appendCount(out, entries.size());
    out += '\n';
    for (std::size_t i = 0; i < entries.size(); ++i) {
        appendCount(out, i + 1);
        out += ". ";
        out += entries[i];
        out += '\n';
    }
}

}  // namespace

std::string summaryText(CombineReport report) {
    std::ranges::sort(report.changedPluginTypes);
    std::ranges::sort(report.changedParameterTypes);
    std::ranges::sort(report.overriddenDefaults);
    std::ranges::sort(report.handlerCheckFailures);
    std::string text;
    appendSection(text, "Number of changed plugin types: ", report.changedPluginTypes);
    appendSection(text, "\nChanged parameter types: ", report.changedParameterTypes);
    // Deliberately without a blank before the number.
    appendSection(text, "\nOverriding defaultValue:", report.overriddenDefaults);
    appendSection(text,
                  "\nNumber of handler integrity checks failures: ", report.handlerCheckFailures);
    appendSection(text, "\nNumber of deprecations: ", report.deprecations);
    appendSection(text, "\nNumber of duplications: ", report.duplications);
    return text;
}

}  // namespace metagen

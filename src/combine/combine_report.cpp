#include "combine/combine_report.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <utility>

#include "support/numbers.h"

namespace metagen {

namespace {

std::string joined(std::initializer_list<std::string_view> pieces) {
    std::size_t length = 0;
    for (const std::string_view piece : pieces) length += piece.size();
    std::string text;
    text.reserve(length);
    for (const std::string_view piece : pieces) text += piece;
    return text;
}

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

void CombineReport::recordChange(std::string_view key, KeyLevel level, const json::Value& newValue,
                                 std::string_view oldText) {
    const bool isDefault = key == "defaultValue";
    if (!isDefault && key != "type") return;
    const std::string newText = json::compactText(newValue);
    // Without an old text the two blanks and the arrow deliberately stand side by side.
    if (!isDefault && level == KeyLevel::plugin) {
        changedPluginTypes.push_back(joined({currentPlugin, "  ", oldText, " -> ", newText}));
        return;
    }
    std::vector<std::string>& entries = isDefault ? overriddenDefaults : changedParameterTypes;
    entries.push_back(
        joined({currentPlugin, "::", currentParameter, "  ", oldText, " -> ", newText}));
}

void CombineReport::recordDeprecation() {
    deprecations.push_back(joined({currentPlugin, "::", currentParameter}));
}

void CombineReport::recordDuplication(std::string_view key, std::string_view liveText) {
    duplications.push_back(
        joined({currentPlugin, "::", currentParameter, "::", key, "::", liveText}));
}

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

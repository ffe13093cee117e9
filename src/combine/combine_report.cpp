#include "combine/combine_report.h"

#include <initializer_list>
#include <utility>

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

}  // namespace metagen

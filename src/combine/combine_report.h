// What `combine` finds out while it merges and checks, and the summary of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "json/value.h"

namespace metagen {

/// Where a key stands: among or in the keys of a plugin, or below.
enum class KeyLevel { plugin, parameter };

/// Each entry is a finished text. Values stand in it as compact JSON, texts in double quotes.
struct CombineReport {
    std::vector<std::string> changedPluginTypes;
    std::vector<std::string> changedParameterTypes;
    std::vector<std::string> overriddenDefaults;
    std::vector<std::string> handlerCheckFailures;
    std::vector<std::string> deprecations;
    std::vector<std::string> duplications;

    /// The plugin and the parameter under which the merge stands. The parameter is empty when a
    /// plugin begins and stays after the plugin's last one. Both are the documents'.
    std::string_view currentPlugin;
    std::string_view currentParameter;

    /// Records a new "type" or "defaultValue"; a change of any other key is no news. The old text
    /// is empty for a key that the live document lacks.
    void recordChange(std::string_view key, KeyLevel level, const json::Value& newValue,
                      std::string_view oldText);

    /// Records that the current plugin or parameter was taken out.
    void recordDeprecation();

    /// Records a value that the stripped document repeats.
    void recordDuplication(std::string_view key, std::string_view liveText);
};

/// Six sections, each a heading with the number of entries and the numbered entries, separated by
/// empty lines. The changes and the handler check failures are sorted in byte order; deprecations
/// and duplications deliberately keep the order of the merge.
std::string summaryText(CombineReport report);

}  // namespace metagen

// What the generators take from a combined document: plugins with their parameters, each reduced
// to a fixed record. Names, categories, type names and default texts are borrowed from the
// document's value tree, which must outlive the model unchanged.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "metadata/default_value_parser.h"
#include "model/named_entries.h"
#include "support/json.h"

namespace metagen {

using Color = Vector3;

/// A parameter's default, std::monostate for none. A text is the default value text as it stands
/// in the document, never null.
using DefaultValue = std::variant<std::monostate, std::int32_t, float, double, bool, Color, AColor,
                                  const std::string*>;

/// A condition on another parameter of the plugin under which a parameter scales.
struct ScaleCondition {
    std::int32_t op = 0;
    std::string ref;    ///< the name of the other parameter
    json::Value value;  ///< null when the document gives none
};

/// The bits of ParamEntry::flags. Hosts compile the numbers in.
namespace param_flag {
inline constexpr std::uint32_t fromUserData = 1;  ///< read from "userData", not from "params"
inline constexpr std::uint32_t fileBrowser = 2;   ///< served by a file browser
inline constexpr std::uint32_t loadModeOne = 4;   ///< the file browser's load mode is "1"
}  // namespace param_flag

struct ParamEntry {
    std::int32_t handlerState = -1;  ///< 1: a handler parameter, 0: none, -1: not looked at
    std::uint32_t flags = 0;         ///< of param_flag
    std::int32_t fileMode = -1;      ///< -1: no file, 1: a file, 2: a file with load mode "1"
    std::int32_t isList = -1;        ///< 0 or 1, -1 when not looked at
    /// The type, a list's element type, or the handler kind; null when there is none.
    const std::string* typeName = nullptr;
    DefaultValue defaultValue;
    std::int32_t scaleUnit = 0;  ///< 0: doesn't scale
    std::int32_t scalePower = 1;
    bool scaleInverse = false;
    std::vector<ScaleCondition> conditions;
};

struct PluginEntry {
    NamedEntries<ParamEntry> params;
    const std::string* category = nullptr;  ///< null when the plugin has none
};

using CombinedModel = NamedEntries<PluginEntry>;

/// The kinds of handlers that ParamEntry::typeName names for `genh`.
namespace handler_kind {
inline const std::string color = "color";
inline const std::string floatNumber = "float";
inline const std::string duplicate = "duplicate";
}  // namespace handler_kind

}  // namespace metagen

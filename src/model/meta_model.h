// What `genm` takes from a combined document: every plugin with all its parameters and user data.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "json/value.h"
#include "support/memory.h"

namespace metagen {

/// The bits of MetaParameter::flags. Hosts compile the numbers in.
namespace param_flag {
inline constexpr std::uint32_t fromUserData = 1;  ///< read from "userData", not from "params"
inline constexpr std::uint32_t fileBrowser = 2;   ///< served by a file browser
inline constexpr std::uint32_t loadModeOne = 4;   ///< the file browser's load mode is "1"
}  // namespace param_flag

/// A condition on another parameter of the plugin under which a parameter scales.
struct ScaleCondition {
    std::int32_t op = 0;
    std::string_view ref;         ///< the name of the other parameter
    std::optional<double> value;  ///< none when the document gives no number
};

struct Scaling {
    std::int32_t unit = 0;
    std::int32_t power = 1;
    bool inverse = false;
    std::span<const ScaleCondition> conditions;
};

/// Texts are the document's, the rest is the arena's that it was read into.
struct MetaParameter {
    std::string_view name;
    std::string_view typeName;  ///< a list's element type
    std::int32_t code = 0;      ///< the type code, of a list the list's
    std::uint32_t flags = 0;    ///< of param_flag
    std::optional<std::string_view> defaultText;
    const Scaling* scaling = nullptr;  ///< null: has no unit, so it doesn't scale
};

struct MetaPlugin {
    std::string_view name;
    std::optional<std::string_view> category;
    std::span<const MetaParameter> parameters;  ///< and user data, in byte order of the names
};

/// In byte order of the names.
using MetaModel = std::vector<MetaPlugin>;

/// Reads one parameter or, with `param_flag::fromUserData`, user data. Throws as readMeta does; a
/// type outside the vocabulary gives the unknown code, and the default is then not looked at.
MetaParameter readMetaParameter(std::string_view name, json::Object object,
                                std::uint32_t originFlag, Arena& arena);

/// Reads the plugins of a document. Of a parameter and user data of one name the parameter stays.
/// What is of the wrong kind is passed over within "scaling", and throws the JSON library's type
/// mismatch elsewhere; a missing "type" throws std::out_of_range (see json::at). A type outside the
/// vocabulary prints "Type: ", the type and " converts to an error" on standard output and ends the
/// process with status 1.
MetaModel readMeta(json::Object plugins, Arena& arena);

/// The plugin or parameter of that name. Throws std::out_of_range "invalid map<K, T> key" when
/// there is none.
template <typename Entries>
const auto& at(const Entries& entries, std::string_view name) {
    const auto nameOf = [](const auto& entry) { return entry.name; };
    const auto entry = std::ranges::lower_bound(entries, name, {}, nameOf);
    if (entry == entries.end() || entry->name != name) json::throwInvalidMapKey();
    return *entry;
}

}  // namespace metagen

// What a document says of a parameter.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "metadata/live_metadata.h"

namespace metagen {

/// The members of a parameter's object.
struct ParameterDescription {
    std::string_view type = {};
    std::string_view listType = {};  ///< of the elements; empty for what is no list: left out
    std::optional<std::string_view> defaultText = {};  ///< none: left out
};

/// There is no default text for a single value whose text is "" (two double quotes) or none, and
/// for a list parameter whose default is no list or empty. Ends the process on a type code without
/// a name (see `typeName`). The text stands in the buffer, which can serve for many parameters.
ParameterDescription describe(const ParameterRecord& parameter, std::string& buffer);

}  // namespace metagen

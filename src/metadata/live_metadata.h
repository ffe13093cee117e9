// Everything that the SDK knows about its plugin classes, as `dump` and `combine` need it.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "metadata/key_order.h"
#include "metadata/tagged_value.h"
#include "sdk/renderer.h"

namespace metagen {

struct ParameterRecord {
    bool isList = false;
    std::int32_t code = 0;  ///< the SDK's property type code
    TaggedValue defaultValue;
};

struct PluginRecord {
    std::optional<std::string_view> category;  ///< a constant text; none: written as null
    std::map<std::string, ParameterRecord, CombinedKeyLess> parameters;
};

/// Plugins by class name. The maps keep the first of names that are equal in the combined order.
using LiveMetadata = std::map<std::string, PluginRecord, CombinedKeyLess>;

/// Asks the renderer about every plugin class. A class whose categories can't be reconciled is
/// reported on standard output and ends the process with status 1. Throws std::invalid_argument
/// for a default value that its guide can't describe. The renderer must outlive the metadata:
/// plugin references point into it.
LiveMetadata buildLiveMetadata(const Renderer& renderer);

}  // namespace metagen

// Everything that the SDK knows about its plugin classes, as `dump` and `combine` need it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "metadata/parameter_type.h"
#include "metadata/tagged_value.h"
#include "sdk/renderer.h"

namespace metagen {

struct ParameterRecord {
    bool isList = false;
    std::int32_t code = type_code::unspecified;  ///< the SDK's property type code
    TaggedValue defaultValue;
};

struct NamedParameter {
    std::string name;
    ParameterRecord record;
};

struct PluginRecord {
    std::optional<std::string_view> category;  ///< a constant text; none: written as null
    /// In the combined order; of names that are equal in it the first is kept.
    std::vector<NamedParameter> parameters;
};

/// Takes what the SDK knows of one class. Plugin references in it point into the renderer.
using PluginVisitor = std::function<void(std::string className, PluginRecord plugin)>;

/// Asks the renderer about every plugin class and hands one after the other to the visitor, in the
/// SDK's order; a name may come again. Nothing is kept, so that the whole of it takes no memory. A
/// class whose categories can't be reconciled is reported on standard output and ends the process
/// with status 1. Throws std::invalid_argument for a default value that its guide can't describe.
void visitPlugins(const Renderer& renderer, const PluginVisitor& visit);

}  // namespace metagen

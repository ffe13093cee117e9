// What the SDK knows of one plugin class, as an object of the base document.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "sdk/renderer.h"

namespace metagen {

struct PluginObject {
    std::string text;
    /// A type code that the vocabulary has no name for: the document can't be written.
    std::optional<std::int32_t> namelessCode = {};
};

/// Asks the renderer about the class: its parameters, then its category. Names stand unescaped, the
/// parameters in the combined order; of names that are equal in it the first is kept. Throws
/// std::invalid_argument for a default value that its guide can't describe. A class whose
/// categories can't be reconciled is reported on standard output and ends the process with
/// status 1.
PluginObject readPluginObject(const Renderer& renderer, const std::string& className);

}  // namespace metagen

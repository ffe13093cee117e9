// Tagged default values as a catalogue writes them: {"kind": ..., "value": ...}.
#pragma once

#include "replay_sdk/catalogue_node.h"
#include "replay_sdk/default_value.h"

namespace metagen::replay {

/// The value of an object {"kind": K, "value": V}, with K a name or any 32-bit number. Throws
/// CatalogueError when V is not what the kind takes.
DefaultValue readTaggedDefault(const CatalogueNode& node);

}  // namespace metagen::replay

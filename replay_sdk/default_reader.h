// Tagged default values as a catalogue writes them: {"kind": ..., "value": ...}.
#pragma once

#include "replay_sdk/default_value.h"
#include "replay_sdk/item.h"

namespace metagen::replay {

/// The value of an object {"kind": K, "value": V}, with K a name or any 32-bit number. Throws
/// CatalogueError when V is not what the kind takes.
DefaultValue readTaggedDefault(const Item& item);

}  // namespace metagen::replay

// One plugin instance of a catalogue.
#pragma once

#include <utility>

#include "replay_sdk/catalogue.h"
#include "replay_sdk/catalogue_node.h"

namespace metagen::replay {

/// The instance that the object tells and its id; the classes of the catalogue must be complete.
std::pair<std::int64_t, PluginInstance> readInstance(const CatalogueNode& node,
                                                     const Catalogue& catalogue);

}  // namespace metagen::replay

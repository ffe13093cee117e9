// One parameter of a catalogue: the base document's form and the forms that say more.
#pragma once

#include "replay_sdk/catalogue.h"
#include "replay_sdk/catalogue_node.h"
#include "replay_sdk/list_text.h"

namespace metagen::replay {

/// The parameter that the object tells, without its name. Throws CatalogueError.
Parameter readParameter(const CatalogueNode& node, const InstanceNaming& instanceOf);

}  // namespace metagen::replay

// Reads a catalogue from its JSON text. README.md documents the format.
#pragma once

#include <memory>
#include <string>

#include "replay_sdk/catalogue.h"

namespace metagen::replay {

/// The catalogue that the text tells. Throws CatalogueError, whose text begins with the line of a
/// syntax error or with the place of what is wrong.
std::unique_ptr<Catalogue> readCatalogue(std::string text);

}  // namespace metagen::replay

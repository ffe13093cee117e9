// The base document of an invented SDK, byte for byte as `dump` writes it, and a second revision.
#pragma once

#include <string>

#include "benchmarks/invented_sdk/invented_sdk.h"

namespace metagen::invented {

std::string baseDocument(const InventedSdk& sdk);

/// The same SDK some time later: in three of a hundred parameters the default or the type has
/// changed, the parameter is gone, or another one stands beside it; a few classes are gone or new.
std::string revisedDocument(const InventedSdk& sdk);

}  // namespace metagen::invented

// A hand-kept stripped document for an invented SDK: it covers 40 of 100 plugins, with handlers and
// their user data, file browsers, scaling, overrides, deprecations and keys of the host's own.
#pragma once

#include <string>

#include "benchmarks/invented_sdk/invented_sdk.h"

namespace metagen::invented {

/// Indented, as people keep such files. `combine` finds no clash and no mismatch in it, and the
/// generators accept the combined document.
std::string strippedDocument(const InventedSdk& sdk);

}  // namespace metagen::invented

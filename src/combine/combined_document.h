// The writer of the combined document. Its layout is an interface: no white space, no line break.
#pragma once

#include <string>

#include "support/json.h"

namespace metagen {

/// The whole document. Objects in objects have their members in the combined key order (see
/// `CombinedKeyLess`); of keys that are equal in it only the first in byte order is written.
/// Objects in arrays are written as the JSON library writes them, all members in byte order.
std::string combinedDocument(const json::Object& document);

}  // namespace metagen

// The writer of the combined document. Its layout is an interface: no white space, no line break.
#pragma once

#include <cstddef>
#include <string>

#include "json/value.h"

namespace metagen {

/// The text of a combined document. Objects in objects have their members in the combined key order
/// (see `CombinedKeyLess`); of keys that are equal in it only the first in byte order is written.
/// Objects in arrays are written as the JSON library writes them, all members in byte order. Room
/// is made for the expected size, in bytes.
std::string combinedText(json::Object document, std::size_t expectedSize = 0);

}  // namespace metagen

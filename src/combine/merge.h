// The merge of a stripped document over the live one, and the writer of what comes of it.
#pragma once

#include <cstddef>
#include <string>

#include "combine/combine_report.h"
#include "json/value.h"
#include "support/memory.h"

namespace metagen {

/// Lays the stripped document over the live one, key by key. Only objects are merged; any other
/// stripped value takes the place of the live one, and null takes a plugin (depth 1, the document
/// being depth 0) or a parameter or user-data entry (depth 3) out. The result shares with both
/// documents what only one of them says; what is new lies in the arena. Throws the JSON library's
/// type mismatch where a stripped object meets a live leaf.
json::Object merge(json::Object stripped, json::Object live, Arena& arena, CombineReport& report);

/// The text of a combined document. Objects in objects have their members in the combined key order
/// (see `CombinedKeyLess`); of keys that are equal in it only the first in byte order is written.
/// Objects in arrays are written as the JSON library writes them, all members in byte order. Room
/// is made for the expected size, in bytes.
std::string combinedText(json::Object document, std::size_t expectedSize = 0);

}  // namespace metagen

// The merge of a stripped document over the live one.
#pragma once

#include "combine/combine_report.h"
#include "json/arena.h"
#include "json/value.h"

namespace metagen {

/// Lays the stripped document over the live one, key by key. Only objects are merged; any other
/// stripped value takes the place of the live one, and null takes a plugin (depth 1, the document
/// being depth 0) or a parameter or user-data entry (depth 3) out. The result shares with both
/// documents what only one of them says; what is new lies in the arena. Throws the JSON library's
/// type mismatch where a stripped object meets a live leaf.
json::Object merge(json::Object stripped, json::Object live, json::Arena& arena,
                   CombineReport& report);

}  // namespace metagen

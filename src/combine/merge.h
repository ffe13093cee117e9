// The merge of a stripped document over the live one.
#pragma once

#include "combine/combine_report.h"
#include "support/json.h"

namespace metagen {

/// Lays the stripped document over the live one, key by key. Only objects are merged; any other
/// stripped value takes the place of the live one, and null takes a plugin (depth 1, the document
/// being depth 0) or a parameter or user-data entry (depth 3) out. The stripped values are moved.
/// Throws the JSON module's type mismatch where a stripped object meets a live leaf.
void merge(json::Object stripped, json::Object& live, CombineReport& report);

}  // namespace metagen

// The comparison of two JSON objects, member by member.
#pragma once

#include <string>

#include "json/value.h"

namespace metagen {

/// Appends a line for each member that differs, in byte order of the names and depth first. The
/// path names the two objects: ":" and the name for every level, empty at the top. Members that
/// are objects on both sides are walked; all others, arrays included, are compared whole.
void diffObjects(json::Object left, json::Object right, std::string& out, const std::string& path);

}  // namespace metagen

// The command `diff`, and the comparison of two JSON objects that it is made of.
#pragma once

#include <string>

#include "json/value.h"

namespace metagen {

/// Writes the differences of two JSON documents, a line each (see `diffObjects`), to the output.
/// All three files are opened before anything is parsed. Ends the process with status 1 and a
/// message on standard error when one can't be opened, doesn't parse or is no object; the output
/// then stays behind empty.
void diff(const char* leftPath, const char* rightPath, const char* outputPath);

/// Appends a line for each member that differs, in byte order of the names and depth first. The
/// path names the two objects: ":" and the name for every level, empty at the top. Members that
/// are objects on both sides are walked; all others, arrays included, are compared whole.
void diffObjects(json::Object left, json::Object right, std::string& out, const std::string& path);

}  // namespace metagen

// Holds the tables that were compiled in against those that were loaded.
#pragma once

#include <string>
#include <vector>

#include "metagen/host/handlers.h"
#include "metagen/host/meta.h"

namespace example {

using namespace metagen::host;

/// Each difference is a line. The same content is no difference where source and table hold it
/// differently:
/// - the source has floats to six significant digits, and integers of an array to a float's digits;
/// - the source shares an array between 0 and -0;
/// - a default that the generator could not read is an empty text in the source, and an array
///   without numbers in the table;
/// - a plugin without category has an empty one in the source, and two double quotes in the table;
/// - the table has the whole part of the version, or the lowest integer where none holds it.
std::vector<std::string> differences(const HandlerMeta& compiled, const HandlerMeta& loaded);
std::vector<std::string> differences(const Meta& compiled, const Meta& loaded);

}  // namespace example

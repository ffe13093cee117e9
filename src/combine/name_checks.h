// The checks of the merged document that speak for themselves: name clashes and default values.
#pragma once

#include "json/value.h"

namespace metagen {

/// Runs both checks below over all plugins of the merged document. When names clash, the process
/// then ends with status -1.
void checkNamesAndDefaults(json::Object document);

/// Prints a line on standard output for each plugin that has a parameter and a user-data entry of
/// the same name. Whether there was any.
bool reportNameClashes(json::Object plugins);

/// Prints a line on standard output for each parameter or user-data entry that has neither a type
/// nor a default value, but a list type whose default values can be read. Entries that have either
/// of them deliberately pass without a look at their values. Throws the JSON library's type
/// mismatch at what is no object where an object belongs, and no text where a text does.
void reportUnexpectedDefaults(json::Object plugins);

}  // namespace metagen

// The checks of the merged document: name clashes, default values, and whether parameters, their
// texture handlers and the handlers' user data fit together.
#pragma once

#include "combine/combine_report.h"
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

/// Records every finding in the report's handler check failures, plugin by plugin. Plugins without
/// user data are not examined. Without "plugins", "Combined Json has no Plugins!" and a line feed
/// on standard output end the process with status 1. Throws the JSON library's type mismatch at
/// what is no object where one belongs.
void checkTextureHandlers(json::Object document, CombineReport& report);

}  // namespace metagen

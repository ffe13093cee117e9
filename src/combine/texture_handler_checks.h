// The check that parameters, their texture handlers and the handlers' user data fit together.
#pragma once

#include "combine/combine_report.h"
#include "json/value.h"

namespace metagen {

/// Records every finding in the report's handler check failures, plugin by plugin. Plugins without
/// user data are not examined. Without "plugins", "Combined Json has no Plugins!" and a line feed
/// on standard output end the process with status 1. Throws the JSON library's type mismatch at
/// what is no object where one belongs.
void checkTextureHandlers(json::Object document, CombineReport& report);

}  // namespace metagen

// JSON documents in files.
#pragma once

#include <string>

#include "support/json.h"
#include "support/text_file.h"

namespace metagen::json {

/// Parses the rest of the file and closes it. When it can't be read or parsed, the message for that
/// on standard error ends the process with status 1.
Value parseFileOrExit(File file, const std::string& unreadable, const std::string& malformed);

}  // namespace metagen::json

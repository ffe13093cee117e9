// JSON documents in files.
#pragma once

#include <string>

#include "support/json.h"
#include "support/text_file.h"

namespace metagen::json {

/// Parses the rest of the file and closes it. The document stays to the end of the process. When it
/// can't be read or parsed, the message for that on standard error ends the process with status 1.
Value& parseFileOrExit(File file, const std::string& unreadable, const std::string& malformed);

/// The value as an object. When it is none, the message on standard error ends the process with
/// status 1.
const Object& objectOrExit(const Value& value, const char* message);

}  // namespace metagen::json

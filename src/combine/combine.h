// The command `combine`.
#pragma once

namespace metagen {

/// Lays the stripped document at the first path over what the SDK knows, prints a summary on
/// standard output and writes the combined document to the second path. The output is opened
/// before anything is parsed, so it stays behind empty when the run can't go on; handler check
/// failures are only printed.
void combine(const char* strippedPath, const char* outputPath);

}  // namespace metagen

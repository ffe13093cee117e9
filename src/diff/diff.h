// The command `diff`.
#pragma once

namespace metagen {

/// Writes the differences of two JSON documents, a line each (see `diffObjects`), to the output.
/// All three files are opened before anything is parsed. Ends the process with status 1 and a
/// message on standard error when one can't be opened, doesn't parse or is no object; the output
/// then stays behind empty.
void diff(const char* leftPath, const char* rightPath, const char* outputPath);

}  // namespace metagen

// The command `genh`.
#pragma once

namespace metagen {

/// Writes the handler metadata of a combined document to the output base with ".inl" and ".bin"
/// appended. A file that can't be opened and a document without the shape of one end the process
/// with status 1 and a message on standard error; a missing member, or one of the wrong kind,
/// throws as json::at and json::asObject do. Both outputs are opened before the document is
/// parsed, and stay behind empty.
void genh(const char* inputPath, const char* outputBase);

}  // namespace metagen

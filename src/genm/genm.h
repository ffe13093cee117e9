// The command `genm`.
#pragma once

namespace metagen {

/// Writes the parameter tables of a combined document to the output base with ".inl" and ".bin"
/// appended. A file that can't be opened and a document without the shape of one end the process
/// with status 1 and a message on standard error; metadata that the tables can't express end it
/// with status -1 and a message on standard output, or throw as readMeta, parseInteger and
/// parseFloat do. Both outputs are opened before the document is parsed, and stay behind: empty,
/// but for the ".bin" of a failure in the scaling table.
void genm(const char* inputPath, const char* outputBase);

}  // namespace metagen

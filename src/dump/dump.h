// The command `dump`.
#pragma once

namespace metagen {

/// Writes the base document of everything that the SDK knows to the path. Ends the process with
/// status 1 when no renderer can be created (the reason on standard output), the file can't be
/// opened ("Could not open file" on standard error) or a class's categories can't be reconciled.
void dump(const char* outputPath);

}  // namespace metagen

#include "cli/standard_streams.h"

namespace metagen {

// The C library there keeps the first three numbers for the standard streams, open or not, and
// knows no signal for a pipe without a reader.
void prepareStandardStreams() {}

}  // namespace metagen

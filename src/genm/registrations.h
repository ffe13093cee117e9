// The registrations of plugins and their parameters, the first section of both tables.
#pragma once

#include <string>

#include "genm/value_arrays.h"
#include "model/combined_model.h"
#include "model/obstream.h"

namespace metagen {

/// Appends a statement and an empty line for each plugin; the arrays of default values go to the
/// groups. A default that can't be expressed ends the process or throws (see readTypedDefault).
void appendRegistrations(std::string& out, const CombinedModel& model, ValueArrays& groups);

/// Writes a record for each plugin.
void writeRegistrations(BinaryFile& file, const CombinedModel& model);

}  // namespace metagen

// The registrations of plugins and their parameters, the first section of both tables.
#pragma once

#include <string>

#include "genm/value_arrays.h"
#include "model/combined_model.h"
#include "model/obstream.h"

namespace metagen {

/// The registrations as the two tables have them.
struct Registrations {
    std::string source;    ///< a statement and an empty line for each plugin
    BinaryBuffer records;  ///< a record for each plugin
};

/// Fills both, empty so far, in one pass, which reads every default once; the arrays of default
/// values go to the groups. A default that can't be expressed ends the process or throws
/// (see readTypedDefault).
void fillRegistrations(Registrations& out, ValueArrays& groups, const CombinedModel& model);

}  // namespace metagen

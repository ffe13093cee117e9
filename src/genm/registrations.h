// The registrations of plugins and their parameters, the first section of both tables.
#pragma once

#include <string>

#include "genm/value_arrays.h"
#include "model/meta_model.h"

namespace metagen {

/// Appends the registrations to both tables in one pass, which reads every default once: to the
/// source text a statement and an empty line for each plugin, to the binary table a record for
/// each. The arrays of default values go to the groups. A default that can't be expressed ends the
/// process or throws (see readTypedDefault).
void appendRegistrations(std::string& source, std::string& table, ValueArrays& groups,
                         const MetaModel& model);

}  // namespace metagen

// The writer of the base document. Its layout is an interface: no white space, no line break, the
// members in the combined key order.
#pragma once

#include <string>

#include "metadata/live_metadata.h"

namespace metagen {

/// The whole base document. Ends the process on a type code without a name (see `typeName`).
std::string baseDocument(const LiveMetadata& metadata);

/// Appends the object of one parameter. "defaultValue" is left out for a single value whose text
/// is "" (two double quotes) or none, and for a list parameter whose default is no list or empty.
void appendParameter(std::string& out, const ParameterRecord& parameter);

}  // namespace metagen

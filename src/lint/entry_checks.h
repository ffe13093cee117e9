// What the checks look at in one parameter or user data.
#pragma once

#include <cstdint>

#include "genm/default_record.h"
#include "lint/finding.h"
#include "lint/subject.h"
#include "model/meta_model.h"

namespace metagen::lint {

/// Adds unknown keys and handlers and values of a wrong kind. These are errors where a command
/// refuses the entry, otherwise they are passed over.
void checkEntryShape(const Subject& subject, const json::Member& entry, bool isRefused,
                     Findings& findings);

/// Adds what is doubtful about the default text of a parameter that was read into the record: a
/// number that is read in part, a text that isn't of the type, a literal that doesn't compile.
/// The offset is the text's.
void checkDefault(const MetaParameter& parameter, const DefaultRecord& record, std::uint32_t offset,
                  Findings& findings);

/// Whether a compiler takes the literal of the number.
bool isGoodLiteral(float number);

}  // namespace metagen::lint

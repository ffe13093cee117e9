// The keys of a parameter or user data of the stripped document, and the kinds of their values.
#pragma once

#include "lint/finding.h"
#include "lint/subject.h"

namespace metagen::lint {

/// Adds unknown keys and handlers and values of a wrong kind. These are errors where a command
/// refuses the entry, otherwise they are passed over.
void checkEntryShape(const Subject& subject, const json::Member& entry, bool isRefused,
                     Findings& findings);

}  // namespace metagen::lint

// The checks of a stripped document, each of which adds what it finds.
#pragma once

#include "lint/finding.h"
#include "lint/subject.h"

namespace metagen::lint {

/// The one finding of a document that is not JSON.
void checkSyntax(const json::Document& document, Findings& findings);

/// Text behind a document that is an object.
void checkTrailingText(const json::Document& document, Findings& findings);

/// Keys that stand twice.
void checkRepeatedKeys(const json::Document& document, Findings& findings);

/// Keys that are one in the combined document, and names that it can't hold as they are.
void checkNames(const Subject& subject, Findings& findings);

/// The keys of the document and of its plugins, and the kinds of their values.
void checkShape(const Subject& subject, Findings& findings);

/// What the document says of the SDK: objects over single values, plugins that the SDK lacks, null
/// for what it lacks, and values that it has already. Plugins that the previous SDK had are left to
/// `checkUpgrade`.
void checkAgainstSdk(const Subject& subject, json::Object previous, Findings& findings);

/// Every parameter and user data as the commands read it.
void checkEntries(const Subject& subject, json::Object previous, Findings& findings);

/// Names of parameters and user data, and the user data of handlers.
void checkHandlers(const Subject& subject, Findings& findings);

/// The scaling of parameters.
void checkScaling(const Subject& subject, Findings& findings);

/// What changed in the SDK below the document since the previous base document.
void checkUpgrade(const Subject& subject, json::Object previous, Findings& findings);

}  // namespace metagen::lint

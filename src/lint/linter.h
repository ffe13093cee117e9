// All checks of a stripped document.
#pragma once

#include <string>
#include <vector>

#include "json/document.h"
#include "lint/finding.h"

namespace metagen::lint {

/// What is wrong with a base document that isn't one, as dump writes it; empty when nothing is.
std::string baseDocumentFault(const json::Document& base);

/// What the checks find in the stripped document over the base document, in the order of the
/// places. The previous base document, to which it was last fitted, adds what an upgrade brings; it
/// may be null. Both have no fault.
std::vector<Finding> lint(const json::Document& stripped, const json::Document& base,
                          const json::Document* previous = nullptr);

}  // namespace metagen::lint

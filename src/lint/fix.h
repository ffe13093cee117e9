// The repair of a stripped document: it loses what changes nothing.
#pragma once

#include <string>
#include <vector>

#include "json/document.h"
#include "lint/finding.h"

namespace metagen::lint {

/// Whether a fix takes out what such a finding is about: the member whose key it stands at.
bool isFixable(const Finding& finding);

/// The document's text without the members that the fixable findings are about, and without the
/// objects that are empty then; every other byte stays. A member whose key stands twice stays, too.
/// Throws std::logic_error when combine would make another document of it.
std::string fixedText(const json::Document& stripped, const json::Document& base,
                      const std::vector<Finding>& findings);

}  // namespace metagen::lint

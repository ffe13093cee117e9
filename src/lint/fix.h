// The repair of a stripped document: it loses what changes nothing, and its file gets the rest as a
// whole or stays as it was.
#pragma once

#include <string>
#include <string_view>
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

/// Writes the content beside the file, with its permissions, and renames that over it. What keeps
/// it from that, or nothing: a file that is read-only, a link, one of several names of a file, a
/// device that is full. The file is then as it was.
std::string replaceFile(const std::string& path, std::string_view content);

}  // namespace metagen::lint

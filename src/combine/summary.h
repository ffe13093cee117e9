// The summary of a combine run, for its user to read.
#pragma once

#include <string>

#include "combine/combine_report.h"

namespace metagen {

/// Six sections, each a heading with the number of entries and the numbered entries, separated by
/// empty lines. The changes and the handler check failures are sorted in byte order; deprecations
/// and duplications deliberately keep the order of the merge.
std::string summaryText(CombineReport report);

}  // namespace metagen

// Default values that the tool reads, but most likely not as they were meant.
#pragma once

#include <cstdint>
#include <string_view>

#include "genm/default_record.h"
#include "lint/finding.h"
#include "model/meta_model.h"

namespace metagen::lint {

/// Adds what is doubtful about the default text of a parameter that was read into the record: a
/// number that is read in part, a text that isn't of the type, a literal that doesn't compile.
/// The offset is the text's.
void checkDefault(const MetaParameter& parameter, const DefaultRecord& record, std::uint32_t offset,
                  Findings& findings);

/// Whether a compiler takes the literal of the number.
bool isGoodLiteral(float number);

}  // namespace metagen::lint

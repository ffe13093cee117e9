// The two outputs of `genh`: the statements that the host application pastes into a function body,
// and the table that it loads. Both tell of the same plugins and parameters in the same order.
#pragma once

#include <cstdint>
#include <string>

#include "model/combined_model.h"
#include "model/obstream.h"

namespace metagen {

/// Appends the statements of every plugin, an empty line before each. A parameter without a kind
/// of handler_kind, which the reader never gives, is reported on standard output ("Missing ...",
/// no line feed) and its line left unfinished.
void appendHandlerStatements(std::string& out, const CombinedModel& model);

/// Writes the table: tag, version, plugins. A parameter without a kind is reported in the same
/// way, with nothing after its name.
void writeHandlerTable(BinaryFile& out, std::int32_t version, const CombinedModel& model);

}  // namespace metagen

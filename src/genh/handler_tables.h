// The two outputs of `genh`: the statements that the host application pastes into a function body,
// and the table that it loads. Both tell of the same plugins and parameters in the same order.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/handler_model.h"

namespace metagen {

/// Appends the statements of every plugin, an empty line before each.
void appendHandlerStatements(std::string& out, const std::vector<HandlerPlugin>& plugins);

/// The binary table: tag, version, plugins.
std::string handlerTable(std::int32_t version, const std::vector<HandlerPlugin>& plugins);

}  // namespace metagen

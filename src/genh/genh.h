// The command `genh`, and its two outputs: the statements that the host application pastes into a
// function body, and the table that it loads. Both tell of the same plugins and parameters in the
// same order.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/handlers.h"

namespace metagen {

/// Writes the handler metadata of a combined document to the output base with ".inl" and ".bin"
/// appended. A file that can't be opened and a document without the shape of one end the process
/// with status 1 and a message on standard error; a missing member, or one of the wrong kind,
/// throws as json::at and json::asObject do. Both outputs are opened before the document is
/// parsed, and stay behind empty.
void genh(const char* inputPath, const char* outputBase);

/// Appends the statements of every plugin, an empty line before each.
void appendHandlerStatements(std::string& out, const std::vector<HandlerPlugin>& plugins);

/// The binary table: tag, version, plugins.
std::string handlerTable(std::int32_t version, const std::vector<HandlerPlugin>& plugins);

}  // namespace metagen

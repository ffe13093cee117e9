// The tables as a printed overview.
#pragma once

#include <string>

#include "metagen/host/handlers.h"
#include "metagen/host/meta.h"

namespace example {

using namespace metagen::host;

/// Prints a line for each plugin: how many parameters, handlers and so on it has.
void printOverview(const HandlerMeta& handlers, const Meta& meta);

/// Prints everything about one plugin; false when there is none of that name.
bool printPlugin(const std::string& name, const HandlerMeta& handlers, const Meta& meta);

}  // namespace example

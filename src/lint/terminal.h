// Whether standard output is looked at by somebody.
#pragma once

namespace metagen::lint {

/// Whether standard output is a terminal that shows colours.
bool isColorTerminal();

}  // namespace metagen::lint

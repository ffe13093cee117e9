#include "lint/terminal.h"

namespace metagen::lint {

// Not every console there understands the sequences, and none does before it is asked to.
bool isColorTerminal() { return false; }

}  // namespace metagen::lint

// A whole run of metagen-lint.
#pragma once

namespace metagen::lint {

/// Does what the arguments ask for and returns the exit status. Findings go to standard output,
/// what keeps it from finding any to standard error.
int run(int argumentCount, const char* const* arguments);

}  // namespace metagen::lint

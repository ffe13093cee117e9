// The end of a run whose metadata the generator can't express.
#pragma once

#include <string_view>

#include "support/process_end.h"

namespace metagen {

/// Prints the message on standard output and ends the process with status -1. Files written so far
/// stay as they are.
[[noreturn]] inline void stop(std::string_view message) {
    print(message);
    exitWithStatus(brokenMetadataStatus);
}

}  // namespace metagen

// How a test sees a process that ended because of broken metadata.
#pragma once

#include <gtest/gtest.h>

namespace metagen {

/// Whether that is the status of a process that ended with -1: some systems keep eight bits of it.
inline bool isBrokenMetadata(int status) {
    return ::testing::ExitedWithCode(255)(status) || ::testing::ExitedWithCode(-1)(status);
}

}  // namespace metagen

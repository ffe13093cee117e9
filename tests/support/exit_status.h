// How a test sees a process that ended.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace metagen {

/// Whether that is the status of a process that ended with -1: some systems keep eight bits of it.
inline bool isBrokenMetadata(int status) {
    return ::testing::ExitedWithCode(255)(status) || ::testing::ExitedWithCode(-1)(status);
}

/// Shows what a death test's process prints from here on at its end, on standard error, where the
/// test finds it.
inline void showOutputAtExit() {
    ::testing::internal::CaptureStdout();
    std::atexit([] { std::fputs(::testing::internal::GetCapturedStdout().c_str(), stderr); });
}

}  // namespace metagen

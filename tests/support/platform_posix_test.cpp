#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/platform.h"

namespace metagen {
namespace {

bool isOpenFor(int number, int access) { return (fcntl(number, F_GETFL) & O_ACCMODE) == access; }

void endWithoutStreams() {
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) close(number);
    prepareStandardStreams();
    const bool areUsable = isOpenFor(STDIN_FILENO, O_RDONLY) &&
                           isOpenFor(STDOUT_FILENO, O_WRONLY) && isOpenFor(STDERR_FILENO, O_WRONLY);
    _exit(areUsable ? 0 : 1);
}

TEST(PlatformOnPosixDeathTest, ClosedStreamsAreOpenedForWhatTheyAreFor) {
    EXPECT_EXIT(endWithoutStreams(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace metagen

#include <gtest/gtest.h>

#include <string>

#include "support/platform.h"
#include "support/temporary_file.h"

namespace metagen {
namespace {

using testing::TemporaryFile;

TEST(TextFileOnWindows, LinesEndInTwoBytes) {
    const TemporaryFile file("text");
    file.write("a\nb\r\n");
    EXPECT_EQ(sizeOf(openForReading(file.path()).get()), 7U);
    EXPECT_EQ(file.read(), "a\nb\r\n");
}

TEST(TextFileOnWindows, ATextEndsAtItsEndMark) {
    const TemporaryFile file("text");
    writeAll(openForWriting(file.path(), "wb").get(), "{}\x1a{");
    EXPECT_EQ(file.read(), "{}");
}

}  // namespace
}  // namespace metagen

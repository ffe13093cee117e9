#include "dump/dump.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "sdk/entry_point_table.h"
#include "sdk/exceptions.h"
#include "sdk/fake_sdk.h"
#include "support/exit_status.h"
#include "support/temporary_file.h"

namespace metagen {
namespace {

using testing::FakeSdk;
using testing::TemporaryFile;

TEST(DumpDeathTest, AnSdkExceptionEndsTheRunWithItsText) {
    FakeSdk sdk;
    sdk.classes = {{.name = "A"}};
    entryPoints().Qyra_QyraRenderer_getPluginClassCategories =
        [](void*, const char*) -> std::uint64_t { throw Qyra::QyraException("no licence %s"); };
    const TemporaryFile output("output");
    EXPECT_EXIT((showOutputAtExit(), dump(output.path())), ::testing::ExitedWithCode(1),
                "^no licence %s\n$");
    EXPECT_EQ(output.read(), "");
}

TEST(DumpDeathTest, AnSdkThatEndsTheProcessFindsTheDocumentWritten) {
    FakeSdk sdk;
    sdk.classes = {{.name = "A"}};
    entryPoints().Qyra_QyraRenderer_release = [](void*) { std::_Exit(3); };
    const TemporaryFile output("output");
    EXPECT_EXIT(dump(output.path()), ::testing::ExitedWithCode(3), "");
    EXPECT_EQ(output.read(), R"({"plugins":{"A":{"type":null,"params":{}}}})");
}

}  // namespace
}  // namespace metagen

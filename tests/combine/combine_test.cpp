#include "combine/combine.h"

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

TEST(Combine, ADefaultTextComesThroughBothDocuments) {
    FakeSdk sdk;
    sdk.classes = {
        {.name = "A",
         .parameters = {
             {.name = "p", .code = 9, .defaultValue = [](FakeSdk& fake, QyraValue& value) {
                  value.kind = 9;
                  value.text = fake.allocateText("a\"\\/\n\x01\x7f\xc3\xa4\xff");
              }}}}};
    const TemporaryFile stripped("stripped");
    const TemporaryFile output("output");
    stripped.write("{}");
    ::testing::internal::CaptureStdout();
    combine(stripped.path(), output.path());
    ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(output.read(),
              "{\"plugins\":{\"A\":{\"type\":null,\"params\":{\"p\":{\"type\":\"string\","
              "\"defaultValue\":\"a\\\"\\\\\\/\\n\\u0001\\u007f\xc3\xa4\xff\"}}}}}");
}

TEST(CombineDeathTest, AnSdkExceptionEndsTheRunWithItsText) {
    FakeSdk sdk;
    sdk.classes = {{.name = "A"}};
    entryPoints().Qyra_QyraRenderer_getPluginClassCategories =
        [](void*, const char*) -> std::uint64_t { throw Qyra::QyraException("no licence %s"); };
    const TemporaryFile stripped("stripped");
    const TemporaryFile output("output");
    stripped.write("{}");
    EXPECT_EXIT((showOutputAtExit(), combine(stripped.path(), output.path())),
                ::testing::ExitedWithCode(1), "^no licence %s\n$");
    EXPECT_EQ(output.read(), "");
}

TEST(CombineDeathTest, AnSdkThatEndsTheProcessFindsTheDocumentWritten) {
    FakeSdk sdk;
    sdk.classes = {{.name = "A"}};
    entryPoints().Qyra_QyraRenderer_release = [](void*) { std::_Exit(3); };
    const TemporaryFile stripped("stripped");
    const TemporaryFile output("output");
    stripped.write(R"({"version":1})");
    EXPECT_EXIT(combine(stripped.path(), output.path()), ::testing::ExitedWithCode(3), "");
    EXPECT_EQ(output.read(), R"({"plugins":{"A":{"type":null,"params":{}}},"version":1})");
}

}  // namespace
}  // namespace metagen

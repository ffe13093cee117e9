#include "genm/tables.h"

#include <gtest/gtest.h>

#include "genm/table_bytes.h"
#include "model/reading.h"

namespace metagen {
namespace {

const std::string plain = "{'type': 'string'}";
const std::string fileBrowser =
    "{'type': 'string', 'handler': 'FileBrowserHandler', 'handlerinfo': {}}";
const std::string inputFile =
    "{'type': 'string', 'handler': 'FileBrowserHandler', 'handlerinfo': {'loadMode': '1'}}";

std::string source(const FileTable& table) {
    std::string out;
    appendFileTable(out, "m.fileParams", table);
    return out;
}

std::string bytes(const FileTable& table) {
    std::string records;
    appendFileRecords(records, table);
    return records;
}

TEST(FileTables, HoldTheParametersByTheirFileMode) {
    const ReadModel model("{'B': {'params': {'z': " + inputFile + ", 'b': " + fileBrowser +
                          ", 'a': " + plain + "}}, 'A': {'params': {'c': " + inputFile + "}}}");
    const FileTables tables = collectFileTables(model);
    EXPECT_EQ(source(tables.files),
              "m.fileParams = {\n\t{ \"A\", {\"c\"}},\n\t{ \"B\", {\"b\", \"z\"}}\n};\n");
    EXPECT_EQ(source(tables.inputFiles),
              "m.fileParams = {\n\t{ \"A\", {\"c\"}},\n\t{ \"B\", {\"z\"}}\n};\n");
}

TEST(FileTables, CountUserData) {
    const ReadModel model("{'A': {'params': {'b': " + fileBrowser +
                          "}, 'userData': {'a': " + inputFile + "}}}");
    const FileTables tables = collectFileTables(model);
    EXPECT_EQ(source(tables.files), "m.fileParams = {\n\t{ \"A\", {\"a\", \"b\"}}\n};\n");
    EXPECT_EQ(source(tables.inputFiles), "m.fileParams = {\n\t{ \"A\", {\"a\"}}\n};\n");
}

TEST(FileTables, LeaveOutPluginsWithoutFiles) {
    const ReadModel model("{'A': {}, 'B': {'params': {'a': " + plain +
                          "}}, 'C': {'params': {'a': " + fileBrowser + "}}}");
    const FileTables tables = collectFileTables(model);
    EXPECT_EQ(source(tables.files), "m.fileParams = {\n\t{ \"C\", {\"a\"}}\n};\n");
    EXPECT_TRUE(tables.inputFiles.empty());
}

TEST(FileTableText, OneLineForEachPlugin) {
    EXPECT_EQ(source({{"PluginA", {"a", "b"}}, {"PluginB", {"c"}}}),
              "m.fileParams = {\n"
              "\t{ \"PluginA\", {\"a\", \"b\"}},\n"
              "\t{ \"PluginB\", {\"c\"}}\n"
              "};\n");
}

TEST(FileTableText, NamesAreNotEscaped) {
    EXPECT_EQ(source({{"A\"\\", {"b\n\\"}}}),
              "m.fileParams = {\n\t{ \"A\"\\\", {\"b\n\\\"}}\n};\n");
}

TEST(FileTableText, AnEmptyTableHasNoOpeningBrace) {
    EXPECT_EQ(source({}), "m.fileParams = \n};\n");
}

TEST(FileTableText, APluginWithoutNamesHasNoOpeningBrace) {
    EXPECT_EQ(source({{"PluginA", {}}, {"PluginB", {"c"}}}),
              "m.fileParams = {\n\t{ \"PluginA\",}},\n\t{ \"PluginB\", {\"c\"}}\n};\n");
}

TEST(FileTableText, IsAnAssignmentToTheMember) {
    std::string out = "before\n";
    appendFileTable(out, "m.inputFileParams", {{"A", {"a"}}});
    EXPECT_EQ(out, "before\nm.inputFileParams = {\n\t{ \"A\", {\"a\"}}\n};\n");
}

TEST(FileTableBytes, CountsAndNames) {
    EXPECT_EQ(
        bytes({{"PluginA", {"a", "b"}}, {"B", {"c"}}}),
        u32(2) + text("PluginA") + u32(2) + text("a") + text("b") + text("B") + u32(1) + text("c"));
}

TEST(FileTableBytes, AnEmptyTableIsItsCount) { EXPECT_EQ(bytes({}), u32(0)); }

}  // namespace
}  // namespace metagen

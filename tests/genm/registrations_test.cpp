#include "genm/tables.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "genm/table_bytes.h"
#include "model/reading.h"

namespace metagen {
namespace {

/// The registrations in both tables.
struct Written {
    std::string source;
    std::string bytes;

    explicit Written(const MetaModel& model) {
        ValueArrays groups;
        appendRegistrations(source, bytes, groups, model);
    }
};

std::string source(const MetaModel& model) { return Written(model).source; }

std::string bytes(const MetaModel& model) { return Written(model).bytes; }

TEST(Registrations, APluginWithoutParametersIsOneLine) {
    const ReadModel model("{'A': {'type': 'light'}}");
    EXPECT_EQ(source(model), "m.add(\"A\", \"light\");\n\n");
    EXPECT_EQ(bytes(model), text("A") + text("light") + u32(0));
}

TEST(Registrations, AMissingCategoryAndAnEmptyOneDifferOnlyInTheBinaryTable) {
    for (const char* plugin : {"{'A': {}}", "{'A': {'type': 3}}", "{'A': {'type': null}}"}) {
        EXPECT_EQ(source(ReadModel(plugin)), "m.add(\"A\", \"\");\n\n");
        EXPECT_EQ(bytes(ReadModel(plugin)), text("A") + text("\"\"") + u32(0));
    }
    const ReadModel model("{'A': {'type': ''}}");
    EXPECT_EQ(source(model), "m.add(\"A\", \"\");\n\n");
    EXPECT_EQ(bytes(model), text("A") + text("") + u32(0));
}

TEST(Registrations, ParametersAreChainedInOneStatement) {
    const ReadModel model(
        "{'A': {'type': 't', 'params': {'b': {'type': 'float', 'defaultValue': '0.5'},"
        " 'a': {'type': 'integer'}}}, 'B': {'params': {'c': {'type': 'color'}}}}");
    EXPECT_EQ(source(model),
              "m.add(\"A\", \"t\")\n"
              "\t.add(\"a\", \"integer\", 0, 0)\n"
              "\t.add(\"b\", \"float\", 0, 0.5f);\n"
              "\n"
              "m.add(\"B\", \"\")\n"
              "\t.add(\"c\", \"color\", 0, \"\");\n"
              "\n");
    EXPECT_EQ(bytes(model), text("A") + text("t") + u32(2) +                              //
                                text("a") + text("integer") + u32(0) + u32(0) + i32(0) +  //
                                text("b") + text("float") + u32(0) + u32(1) + f32(0.5F) +
                                text("B") + text("\"\"") + u32(1) +  //
                                text("c") + text("color") + u32(0) + u32(2) + text(""));
}

TEST(Registrations, FlagsAreDecimal) {
    const ReadModel model(
        "{'A': {'userData': {'f': {'type': 'string', 'handler': 'FileBrowserHandler',"
        " 'handlerinfo': {'loadMode': '1'}}}}}");
    EXPECT_EQ(source(model), "m.add(\"A\", \"\")\n\t.add(\"f\", \"string\", 7, \"\");\n\n");
    EXPECT_EQ(bytes(model), text("A") + text("\"\"") + u32(1) + text("f") + text("string") +
                                u32(7) + u32(2) + text(""));
}

TEST(Registrations, AListIsNamedAfterItsElements) {
    const ReadModel model(
        "{'A': {'params': {'a': {'type': 'list', 'listType': 'float', 'defaultValue': 'List(1)'},"
        " 'b': {'type': 'list'}}}}");
    EXPECT_EQ(source(model),
              "m.add(\"A\", \"\")\n"
              "\t.add(\"a\", \"float\", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | "
              "qymat::SQDT_LIST, flt0)\n"
              "\t.add(\"b\", \"list\", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | "
              "qymat::SQDT_LIST);\n\n");
    EXPECT_EQ(bytes(model), text("A") + text("\"\"") + u32(2) +  //
                                text("a") + text("float") + u32(0) + u32(5) + u32(521) + u32(1) +
                                f32(1) +  //
                                text("b") + text("list") + u32(0) + u32(3) + u32(524));
}

TEST(Registrations, TypeNamesStandAsTheDocumentHasThem) {
    const ReadModel model("{'A': {'params': {'a': {'type': 'acolor texture'}}}}");
    EXPECT_EQ(source(model), "m.add(\"A\", \"\")\n\t.add(\"a\", \"acolor texture\", 0, \"\");\n\n");
}

TEST(Registrations, NamesAreNotEscaped) {
    const ReadModel model(
        R"({'A\"': {'type': '\\', 'params': {'b\\\n\u0001': {'type': 'float'}}}})");
    EXPECT_EQ(source(model),
              "m.add(\"A\"\", \"\\\")\n"
              "\t.add(\"b\\\n\x01\", \"float\", 0, \"\");\n\n");
}

TEST(Registrations, EqualDefaultsShareTheirArrayAcrossPlugins) {
    const ReadModel model(
        "{'A': {'params': {'a': {'type': 'color', 'defaultValue': 'Color(1, 1, 1)'},"
        " 'b': {'type': 'vector', 'defaultValue': 'Vector(1, 1, 1)'}}},"
        " 'B': {'params': {'a': {'type': 'color', 'defaultValue': 'Color(0, 0, 0)'},"
        " 'b': {'type': 'color', 'defaultValue': 'Color(1, 1, 1)'}}}}");
    const std::string d3 = "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, ";
    EXPECT_EQ(source(model),
              "m.add(\"A\", \"\")\n"
              "\t.add(\"a\", \"color\", 0, " +
                  d3 +
                  "clr0)\n"
                  "\t.add(\"b\", \"vector\", 0, " +
                  d3 +
                  "vec0);\n"
                  "\n"
                  "m.add(\"B\", \"\")\n"
                  "\t.add(\"a\", \"color\", 0, " +
                  d3 +
                  "clr1)\n"
                  "\t.add(\"b\", \"color\", 0, " +
                  d3 +
                  "clr0);\n"
                  "\n");
}

TEST(Registrations, ADefaultThatIsNoNumberThrows) {
    const ReadModel model("{'A': {'params': {'a': {'type': 'float', 'defaultValue': 'x'}}}}");
    EXPECT_THROW(source(model), std::invalid_argument);
}

}  // namespace
}  // namespace metagen

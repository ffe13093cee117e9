#include "genh/handler_tables.h"

#include <gtest/gtest.h>

#include "model/binary_bytes.h"

namespace metagen {
namespace {

ParamEntry paramOf(const std::string& kind, DefaultValue value) {
    ParamEntry param;
    param.handlerState = 1;
    param.typeName = &kind;
    param.defaultValue = std::move(value);
    return param;
}

ParamEntry colorParam(float red, float green, float blue) {
    return paramOf(handler_kind::color, AColor{red, green, blue, 1});
}

ParamEntry floatParam(float value) { return paramOf(handler_kind::floatNumber, value); }

ParamEntry duplicateParam() { return paramOf(handler_kind::duplicate, {}); }

std::string statementsOf(const CombinedModel& model) {
    std::string text;
    appendHandlerStatements(text, model);
    return text;
}

std::string tableOf(std::int32_t version, const CombinedModel& model) {
    return fileBytesOf([&](BinaryFile& out) { writeHandlerTable(out, version, model); });
}

CombinedModel modelOf(std::string_view name, ParamEntry param) {
    CombinedModel model(1);
    model[0].name = "P";
    model[0].entry.params.push_back({name, std::move(param)});
    return model;
}

TEST(HandlerStatements, NoPluginsGiveNothing) { EXPECT_EQ(statementsOf({}), ""); }

TEST(HandlerStatements, OneBlockForEachPluginWithAnEmptyLineBefore) {
    CombinedModel model(2);
    model[0].name = "MtlA";
    model[0].entry.params = {{"diffuse", colorParam(0.5F, 0.5F, 0.5F)},
                             {"opacity", floatParam(1)},
                             {"tint", colorParam(1, 0.5F, 0.25F)}};
    model[1].name = "TexB";
    model[1].entry.params = {{"alpha", duplicateParam()}};
    EXPECT_EQ(statementsOf(model),
              "\n"
              "m.add(\"MtlA\")\n"
              "\t.add(\"diffuse\", HandlerTypes::Color, 0.5f)\n"
              "\t.add(\"opacity\", HandlerTypes::Float)\n"
              "\t.add(\"tint\", HandlerTypes::Color, 1.f, 0.5f, 0.25f);\n"
              "\n"
              "m.add(\"TexB\")\n"
              "\t.add(\"alpha\", HandlerTypes::Duplicate);\n");
}

/// The line of a parameter "p".
std::string lineOf(ParamEntry param) {
    const std::string text = statementsOf(modelOf("p", std::move(param)));
    const std::string before = "\nm.add(\"P\")\n\t.add(\"p\",";
    EXPECT_EQ(text.substr(0, before.size()), before);
    return text.substr(before.size());
}

TEST(HandlerStatements, EveryKindHasItsArguments) {
    EXPECT_EQ(lineOf(colorParam(1, 1, 1)), " HandlerTypes::Color);\n");
    EXPECT_EQ(lineOf(colorParam(2, 2, 2)), " HandlerTypes::Color, 2.f);\n");
    EXPECT_EQ(lineOf(colorParam(0.2F, 0.2F, 0.3F)), " HandlerTypes::Color, 0.2f, 0.2f, 0.3f);\n");
    EXPECT_EQ(lineOf(floatParam(1)), " HandlerTypes::Float);\n");
    EXPECT_EQ(lineOf(floatParam(0)), " HandlerTypes::Float, 0.f);\n");
    EXPECT_EQ(lineOf(floatParam(1234567)), " HandlerTypes::Float, 1.23457e+06f);\n");
    EXPECT_EQ(lineOf(floatParam(999999)), " HandlerTypes::Float, 999999.f);\n");
    EXPECT_EQ(lineOf(duplicateParam()), " HandlerTypes::Duplicate);\n");
}

TEST(HandlerStatements, NamesAreNotEscaped) {
    EXPECT_EQ(statementsOf(modelOf("a\"\\\n", duplicateParam())),
              "\nm.add(\"P\")\n\t.add(\"a\"\\\n\", HandlerTypes::Duplicate);\n");
}

TEST(HandlerStatements, AParameterWithoutKindIsReportedAndItsLineLeftUnfinished) {
    testing::internal::CaptureStdout();
    const std::string text = statementsOf(modelOf("p", ParamEntry()));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Missing P::p_color or float");
    EXPECT_EQ(text, "\nm.add(\"P\")\n\t.add(\"p\",;\n");
}

TEST(HandlerTable, NoPluginsGiveTheHeadAlone) {
    EXPECT_EQ(tableOf(-2, {}), bytes("HDLR\xfe\xff\xff\xff\0\0\0\0"));
}

TEST(HandlerTable, PluginsAndParametersInTheirOrder) {
    CombinedModel model(2);
    model[0].name = "MtlA";
    model[0].entry.params = {{"b", floatParam(1)}, {"c", duplicateParam()}};
    model[1].name = "";
    model[1].entry.params = {{"d\n", duplicateParam()}};
    EXPECT_EQ(tableOf(3, model), bytes("HDLR\3\0\0\0\2\0\0\0"
                                       "\4\0\0\0MtlA\2\0\0\0"
                                       "\1\0\0\0b\1\0\0\0\0\0\0\0"
                                       "\1\0\0\0c\6\0\0\0\0\0\0\0"
                                       "\0\0\0\0\1\0\0\0"
                                       "\2\0\0\0d\n\6\0\0\0\0\0\0\0"));
}

/// The record after a parameter's name.
std::string recordOf(ParamEntry param) {
    const std::string table = tableOf(0, modelOf("p", std::move(param)));
    const std::string before = bytes("HDLR\0\0\0\0\1\0\0\0\1\0\0\0P\1\0\0\0\1\0\0\0p");
    EXPECT_EQ(table.substr(0, before.size()), before);
    return table.substr(before.size());
}

TEST(HandlerTable, EveryKindHasItsRecord) {
    EXPECT_EQ(recordOf(colorParam(1, 1, 1)), bytes("\2\0\0\0\0\0\0\0"));
    EXPECT_EQ(recordOf(colorParam(2, 2, 2)), bytes("\2\0\0\0\1\0\0\0\0\0\0\x40"));
    EXPECT_EQ(recordOf(colorParam(2, 1, -1)),
              bytes("\2\0\0\0\3\0\0\0\0\0\0\x40\0\0\x80\x3f\0\0\x80\xbf"));
    EXPECT_EQ(recordOf(floatParam(1)), bytes("\1\0\0\0\0\0\0\0"));
    EXPECT_EQ(recordOf(floatParam(0)), bytes("\1\0\0\0\1\0\0\0\0\0\0\0"));
    EXPECT_EQ(recordOf(duplicateParam()), bytes("\6\0\0\0\0\0\0\0"));
}

TEST(HandlerTable, AParameterWithoutKindIsReportedAndHasNoRecord) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(recordOf(ParamEntry()), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Missing P::p_color or float");
}

}  // namespace
}  // namespace metagen

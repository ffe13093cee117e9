#include "genh/genh.h"

#include <gtest/gtest.h>

#include <string_view>

namespace metagen {
namespace {

using namespace std::string_view_literals;

constexpr const HandlerKind* color = &handler_kind::color;
constexpr const HandlerKind* floatNumber = &handler_kind::floatNumber;
constexpr const HandlerKind* duplicate = &handler_kind::duplicate;

std::string statementsOf(const std::vector<HandlerPlugin>& plugins) {
    std::string text;
    appendHandlerStatements(text, plugins);
    return text;
}

TEST(HandlerStatements, NoPluginsGiveNothing) { EXPECT_EQ(statementsOf({}), ""); }

TEST(HandlerStatements, OneBlockForEachPluginWithAnEmptyLineBefore) {
    EXPECT_EQ(statementsOf({{"MtlA",
                             {{"diffuse", color, {0.5F}, 1},
                              {"opacity", floatNumber},
                              {"tint", color, {1, 0.5F, 0.25F}, 3}}},
                            {"TexB", {{"alpha", duplicate}}}}),
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
std::string lineOf(const HandlerParameter& parameter) {
    const std::string text = statementsOf({{"P", {parameter}}});
    const std::string before = "\nm.add(\"P\")\n\t.add(\"p\",";
    EXPECT_EQ(text.substr(0, before.size()), before);
    return text.substr(before.size());
}

TEST(HandlerStatements, EveryKindHasItsArguments) {
    EXPECT_EQ(lineOf({"p", color}), " HandlerTypes::Color);\n");
    EXPECT_EQ(lineOf({"p", color, {2}, 1}), " HandlerTypes::Color, 2.f);\n");
    EXPECT_EQ(lineOf({"p", color, {0.2F, 0.2F, 0.3F}, 3}),
              " HandlerTypes::Color, 0.2f, 0.2f, 0.3f);\n");
    EXPECT_EQ(lineOf({"p", floatNumber}), " HandlerTypes::Float);\n");
    EXPECT_EQ(lineOf({"p", floatNumber, {0}, 1}), " HandlerTypes::Float, 0.f);\n");
    EXPECT_EQ(lineOf({"p", floatNumber, {1234567}, 1}), " HandlerTypes::Float, 1.23457e+06f);\n");
    EXPECT_EQ(lineOf({"p", floatNumber, {999999}, 1}), " HandlerTypes::Float, 999999.f);\n");
    EXPECT_EQ(lineOf({"p", duplicate}), " HandlerTypes::Duplicate);\n");
}

TEST(HandlerStatements, NamesAreNotEscaped) {
    EXPECT_EQ(statementsOf({{"P\"", {{"a\"\\\n", duplicate}}}}),
              "\nm.add(\"P\"\")\n\t.add(\"a\"\\\n\", HandlerTypes::Duplicate);\n");
}

TEST(HandlerTable, NoPluginsGiveTheHeadAlone) {
    EXPECT_EQ(handlerTable(-2, {}), "HDLR\xfe\xff\xff\xff\0\0\0\0"sv);
}

TEST(HandlerTable, PluginsAndParametersInTheirOrder) {
    EXPECT_EQ(handlerTable(3, {{"MtlA", {{"b", floatNumber}, {"c", duplicate}}},
                               {"", {{"d\n", duplicate}}}}),
              "HDLR\3\0\0\0\2\0\0\0"
              "\4\0\0\0MtlA\2\0\0\0"
              "\1\0\0\0b\1\0\0\0\0\0\0\0"
              "\1\0\0\0c\6\0\0\0\0\0\0\0"
              "\0\0\0\0\1\0\0\0"
              "\2\0\0\0d\n\6\0\0\0\0\0\0\0"sv);
}

/// The record after a parameter's name.
std::string recordOf(const HandlerParameter& parameter) {
    const std::string table = handlerTable(0, {{"P", {parameter}}});
    const std::string_view before = "HDLR\0\0\0\0\1\0\0\0\1\0\0\0P\1\0\0\0\1\0\0\0p"sv;
    EXPECT_EQ(table.substr(0, before.size()), before);
    return table.substr(before.size());
}

TEST(HandlerTable, EveryKindHasItsRecord) {
    EXPECT_EQ(recordOf({"p", color}), "\2\0\0\0\0\0\0\0"sv);
    EXPECT_EQ(recordOf({"p", color, {2}, 1}), "\2\0\0\0\1\0\0\0\0\0\0\x40"sv);
    EXPECT_EQ(recordOf({"p", color, {2, 1, -1}, 3}),
              "\2\0\0\0\3\0\0\0\0\0\0\x40\0\0\x80\x3f\0\0\x80\xbf"sv);
    EXPECT_EQ(recordOf({"p", floatNumber}), "\1\0\0\0\0\0\0\0"sv);
    EXPECT_EQ(recordOf({"p", floatNumber, {0}, 1}), "\1\0\0\0\1\0\0\0\0\0\0\0"sv);
    EXPECT_EQ(recordOf({"p", duplicate}), "\6\0\0\0\0\0\0\0"sv);
}

}  // namespace
}  // namespace metagen

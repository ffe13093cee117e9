#include "metadata/base_document.h"

#include <gtest/gtest.h>

#include "support/exit_status.h"

namespace metagen {
namespace {

std::string parameter(bool isList, std::int32_t code, TaggedValue value) {
    std::string out;
    std::string buffer = "left over";
    appendParameter(
        out, describe({.isList = isList, .code = code, .defaultValue = std::move(value)}, buffer));
    return out;
}

PluginRecord plugin(const char* parameterName, std::int32_t code) {
    return {
        .category = {},
        .parameters = {{.name = parameterName,
                        .record = {.code = code, .defaultValue = {.tag = 3, .payload = true}}}}};
}

TaggedValue text(const char* content) { return {.tag = 9, .payload = std::string(content)}; }

TEST(BaseDocument, OfNothing) { EXPECT_EQ(BaseDocument().text(), "{\"plugins\":{}}"); }

TEST(BaseDocument, NamesStandUnescaped) {
    BaseDocument document;
    document.add("A\"\\", plugin("p\"", 3));
    EXPECT_EQ(document.text(),
              "{\"plugins\":{\"A\"\\\":{\"type\":null,\"params\":{\"p\"\":"
              "{\"type\":\"bool\",\"defaultValue\":\"1\"}}}}}");
}

TEST(BaseDocument, ClassesAreOrderedAndTheFirstOfEqualOnesStays) {
    BaseDocument document;
    document.add("b", {});
    document.add("A_c", {.category = "light", .parameters = {}});
    document.add("a.C", plugin("dropped", 3));
    EXPECT_EQ(document.text(), R"({"plugins":{"A_c":{"type":"light","params":{}},)"
                               R"("b":{"type":null,"params":{}}}})");
}

TEST(BaseDocument, IsTheSameInAFile) {
    BaseDocument document;
    document.add("b", plugin("p", 3));
    document.add("a", {});
    std::FILE* file = std::tmpfile();
    ASSERT_NE(file, nullptr);
    document.write(file);
    std::rewind(file);
    char bytes[200] = {};
    const std::size_t count = std::fread(bytes, 1, sizeof bytes, file);
    EXPECT_EQ(std::fclose(file), 0);
    EXPECT_EQ(std::string_view(bytes, count), document.text());
}

TEST(BaseDocument, ATypeWithoutNameCountsOnlyInAClassThatIsKept) {
    BaseDocument document;
    document.add("a", {});
    document.add("A", plugin("p", 50));
    EXPECT_EQ(document.text(), R"({"plugins":{"a":{"type":null,"params":{}}}})");
}

TEST(BaseDocumentDeathTest, ATypeWithoutNameEndsTheProcessWhenTheTextIsMade) {
    BaseDocument document;
    document.add("a", plugin("p", 50));
    EXPECT_EXIT(static_cast<void>(document.text()), isBrokenMetadata, "");
}

TEST(BaseDocumentParameter, TheDefaultTextIsEscaped) {
    EXPECT_EQ(parameter(false, 9, text("a\"\n/")), R"({"type":"string","defaultValue":"a\"\n/"})");
}

TEST(BaseDocumentParameter, AnEmptyDefaultTextIsWritten) {
    EXPECT_EQ(parameter(false, 9, text("")), R"({"type":"string","defaultValue":""})");
}

TEST(BaseDocumentParameter, TwoQuotesAndNoneAreNoDefault) {
    EXPECT_EQ(parameter(false, 9, text("\"\"")), R"({"type":"string"})");
    EXPECT_EQ(parameter(false, 9, text("none")), R"({"type":"string"})");
    EXPECT_EQ(parameter(false, 9, text("None")), R"({"type":"string","defaultValue":"None"})");
    EXPECT_EQ(parameter(false, 9, text("\"\" ")), R"({"type":"string","defaultValue":"\"\" "})");
}

TEST(BaseDocumentParameter, ADoubleIsNamedFloat) {
    EXPECT_EQ(parameter(false, 2, {.tag = 2, .payload = 0.5}),
              R"({"type":"float","defaultValue":"0.5"})");
}

TEST(BaseDocumentParameter, AnEmptyListHasNoDefault) {
    EXPECT_EQ(parameter(true, 101, {.tag = 101, .payload = std::vector<float>{}}),
              R"({"type":"list","listType":"float"})");
    EXPECT_EQ(parameter(true, 12, {.tag = 12, .payload = std::vector<TaggedValue>{}}),
              R"({"type":"list","listType":"list"})");
}

TEST(BaseDocumentParameter, AListWithoutAListDefaultHasNone) {
    EXPECT_EQ(parameter(true, 1, {.tag = 1, .payload = 0.5F}),
              R"({"type":"list","listType":"float"})");
}

TEST(BaseDocumentParameter, AListWithElementsHasADefaultWhateverItsText) {
    EXPECT_EQ(parameter(true, 109, {.tag = 109, .payload = std::vector<std::string>{"\""}}),
              R"json({"type":"list","listType":"string","defaultValue":"StringList(\")"})json");
}

TEST(BaseDocumentParameter, ASingleParameterWritesAListDefaultsText) {
    EXPECT_EQ(parameter(false, 100, {.tag = 100, .payload = std::vector<std::int32_t>{}}),
              R"json({"type":"integer","defaultValue":"IntList()"})json");
}

}  // namespace
}  // namespace metagen

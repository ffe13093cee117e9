#include "metadata/base_document.h"

#include <gtest/gtest.h>

namespace metagen {
namespace {

std::string parameter(bool isList, std::int32_t code, TaggedValue value) {
    std::string out;
    appendParameter(out, {.isList = isList, .code = code, .defaultValue = std::move(value)});
    return out;
}

TaggedValue text(const char* content) { return {.tag = 9, .payload = std::string(content)}; }

TEST(BaseDocument, OfNothing) { EXPECT_EQ(baseDocument({}), "{\"plugins\":{}}"); }

TEST(BaseDocument, NamesStandUnescaped) {
    LiveMetadata metadata;
    metadata["A\"\\"].parameters["p\""] = {.code = 3, .defaultValue = {.tag = 3, .payload = true}};
    EXPECT_EQ(baseDocument(metadata),
              "{\"plugins\":{\"A\"\\\":{\"type\":null,\"params\":{\"p\"\":"
              "{\"type\":\"bool\",\"defaultValue\":\"1\"}}}}}");
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

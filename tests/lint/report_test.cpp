#include "lint/report.h"

#include <gtest/gtest.h>

#include <string>

namespace metagen::lint {
namespace {

/// Two findings in a document of two lines, one with a note.
std::string reported(const ReportOptions& options) {
    const json::Document document("{\"a\": 1,\n \"a\": \"50%\"}");
    const std::vector<Finding> findings = {
        {&rule::syntax, 0, "wrong: 50%", {}},
        {&rule::duplicateKey, 10, "\"a\" twice", {{1, "given here before"}}}};
    return report("a,b.json", placed(document, findings), options);
}

TEST(Report, AsText) {
    EXPECT_EQ(reported({}),
              "a,b.json:1:1: error: wrong: 50% [syntax]\n"
              "a,b.json:2:2: warning: \"a\" twice [duplicate-key]\n"
              "a,b.json:1:2: note: given here before\n");
}

TEST(Report, AsTextInColors) {
    const std::string text = reported({.hasColors = true});
    EXPECT_EQ(text.substr(0, text.find('\n')),
              "\x1b[1ma,b.json:1:1:\x1b[0m \x1b[31;1merror:\x1b[0m wrong: 50% [syntax]");
}

TEST(Report, ForWorkflows) {
    EXPECT_EQ(reported({.format = Format::github}),
              "::error file=a%2Cb.json,line=1,col=1,title=syntax::wrong: 50%25\n"
              "::warning file=a%2Cb.json,line=2,col=2,title=duplicate-key::"
              "\"a\" twice%0Aline 1: given here before\n");
}

TEST(Report, ForWorkflowsKeepsItsLine) {
    const std::vector<PlacedFinding> findings = {{&rule::syntax, {1, 1}, "wrong: a, b", {}}};
    EXPECT_EQ(report("a\r\n:b", findings, {.format = Format::github}),
              "::error file=a%0D%0A%3Ab,line=1,col=1,title=syntax::wrong: a, b\n");
}

TEST(Report, AsJson) {
    EXPECT_EQ(reported({.format = Format::json}),
              "{\"path\": \"a,b.json\", \"findings\": [\n"
              R"(  {"line": 1, "column": 1, "severity": "error", "rule": "syntax", )"
              R"("message": "wrong: 50%", "notes": []},)"
              "\n"
              R"(  {"line": 2, "column": 2, "severity": "warning", "rule": "duplicate-key", )"
              R"("message": "\"a\" twice", )"
              R"("notes": [{"line": 1, "column": 2, "message": "given here before"}]})"
              "\n]}\n");
}

TEST(Report, OfNothing) {
    EXPECT_EQ(report("a", {}, {}), "");
    EXPECT_EQ(report("a", {}, {.format = Format::github}), "");
    EXPECT_EQ(report("a", {}, {.format = Format::json}), "{\"path\": \"a\", \"findings\": []}\n");
}

TEST(Report, AsSarifIsWholeJson) {
    const json::Document sarif(reported({.format = Format::sarif}));
    ASSERT_TRUE(sarif.isValid());
    const json::Object run =
        json::asObject((*json::at(json::asObject(sarif.root()), "runs").array())[0]);
    const json::Array results = *json::at(run, "results").array();
    ASSERT_EQ(results.size(), 2U);
    EXPECT_EQ(json::compactText(json::at(json::asObject(results[1]), "relatedLocations")),
              R"([{"message":{"text":"given here before"},"physicalLocation":)"
              R"({"artifactLocation":{"uri":"a%2Cb.json"},)"
              R"("region":{"startColumn":2,"startLine":1}}}])");
}

TEST(Report, AsSarifNamesAFileByItsReference) {
    const std::vector<PlacedFinding> findings = {{&rule::syntax, {1, 1}, "wrong", {}}};
    const auto uri = [&findings](std::string_view path) {
        const std::string sarif = report(path, findings, {.format = Format::sarif});
        const std::size_t begin = sarif.find("\"uri\": ") + 7;
        return sarif.substr(begin, sarif.find('}', begin) - begin);
    };
    EXPECT_EQ(uri("a b.json"), "\"a%20b.json\"");
    EXPECT_EQ(uri("/a/b"), "\"file:///a/b\"");
    EXPECT_EQ(uri("C:/a b"), "\"file:///C:/a%20b\"");
}

}  // namespace
}  // namespace metagen::lint

#include "lint/fix.h"

#include <gtest/gtest.h>

#include <string>

#include "lint/linter.h"

namespace metagen::lint {
namespace {

constexpr const char* base = R"({"plugins": {
    "A": {"type": "light", "params": {
        "on": {"type": "bool", "defaultValue": "1"},
        "size": {"type": "float", "defaultValue": "2"}}},
    "B": {"type": null, "params": {}}}})";

/// The fixed form of plugins.
std::string fixed(const std::string& plugins) {
    const std::string begin = R"({"version": 1, "plugins": {)";
    const json::Document stripped(begin + plugins + "}}");
    const json::Document baseDocument{std::string(base)};
    const std::string text = fixedText(stripped, baseDocument, lint(stripped, baseDocument));
    EXPECT_EQ(text.substr(0, begin.size()), begin);
    return text.substr(begin.size(), text.size() - begin.size() - 2);
}

TEST(Fix, LeavesWhatIsNotInTheSdk) {
    const std::string own = R"( "A" : {"params":{ "size": {"defaultValue": "3"}, "on": null } } )";
    EXPECT_EQ(fixed(own), own);
}

TEST(Fix, TakesAMemberWithTheCommaThatGoesWithIt) {
    EXPECT_EQ(fixed(R"("A": {"params": {"size": {"type": "float", "handler": "H"}}})"),
              R"("A": {"params": {"size": {"handler": "H"}}})");
    EXPECT_EQ(fixed(R"("A": {"params": {"size": {"handler": "H" , "type": "float" }}})"),
              R"("A": {"params": {"size": {"handler": "H" }}})");
    EXPECT_EQ(fixed(R"("A": {"params": {"size": {"a": 1, "type": "float", "b": [2, "}"]}}})"),
              R"("A": {"params": {"size": {"a": 1, "b": [2, "}"]}}})");
    EXPECT_EQ(
        fixed(R"("A": {"params": {"size": {"a": [{"c": "]", "type": 1}], "type": "float"}}})"),
        R"("A": {"params": {"size": {"a": [{"c": "]", "type": 1}]}}})");
}

TEST(Fix, TakesSeveralInARow) {
    EXPECT_EQ(fixed(R"("A": {"params": {"size": {"type": "float", "defaultValue": "2", "b": 1}}})"),
              R"("A": {"params": {"size": {"b": 1}}})");
    EXPECT_EQ(fixed(R"("A": {"params": {"size": {"b": 1, "type": "float", "defaultValue": "2"}}})"),
              R"("A": {"params": {"size": {"b": 1}}})");
}

TEST(Fix, TakesWhatIsEmptyThenAndNothingThatWasBefore) {
    EXPECT_EQ(fixed(R"("B": {}, "A": {"params": {"on": {"type": "bool"}}})"), R"("B": {})");
    EXPECT_EQ(fixed(R"("A": {"params": {"on": {"type": "bool"}, "size": {}}})"),
              R"("A": {"params": {"size": {}}})");
}

TEST(Fix, TakesNullThatTakesNothingOut) {
    EXPECT_EQ(fixed(R"("C": null, "B": null, "A": {"params": {"gone": null, "on": null}})"),
              R"("B": null, "A": {"params": {"on": null}})");
}

TEST(Fix, KeepsAKeyThatStandsTwice) {
    const std::string twice = R"("A": {"params": {"size": {"type": "int", "type": "float"}}})";
    EXPECT_EQ(fixed(twice), twice);
    EXPECT_EQ(fixed(R"("A": {"type": "x"}, "A": {"type": "light"})"),
              R"("A": {"type": "x"}, "A": {})");
}

TEST(Fix, LeavesAnEmptyDocument) {
    const json::Document stripped(R"({ "plugins": {"A": {"type": "light"}} })");
    const json::Document baseDocument{std::string(base)};
    EXPECT_EQ(fixedText(stripped, baseDocument, lint(stripped, baseDocument)), "{  }");
}

}  // namespace
}  // namespace metagen::lint

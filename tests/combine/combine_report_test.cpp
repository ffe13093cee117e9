#include "combine/combine_report.h"

#include <gtest/gtest.h>

namespace metagen {
namespace {

using Entries = std::vector<std::string>;

/// A report in the middle of a merge.
CombineReport reportAt(std::string_view plugin, std::string_view parameter) {
    CombineReport report;
    report.currentPlugin = plugin;
    report.currentParameter = parameter;
    return report;
}

TEST(CombineReport, RecordsAPluginTypeUnderThePluginAlone) {
    CombineReport report = reportAt("MtlA", "diffuse");
    report.recordChange("type", KeyLevel::plugin, json::Value("light"), "\"material\"");
    EXPECT_EQ(report.changedPluginTypes, Entries({"MtlA  \"material\" -> \"light\""}));
    EXPECT_EQ(report.changedParameterTypes, Entries());
}

TEST(CombineReport, RecordsAParameterType) {
    CombineReport report = reportAt("MtlA", "diffuse");
    report.recordChange("type", KeyLevel::parameter, json::Value("color"), "\"texture\"");
    EXPECT_EQ(report.changedParameterTypes, Entries({"MtlA::diffuse  \"texture\" -> \"color\""}));
    EXPECT_EQ(report.changedPluginTypes, Entries());
}

TEST(CombineReport, RecordsADefaultAtAnyLevel) {
    CombineReport report = reportAt("MtlA", "diffuse");
    report.recordChange("defaultValue", KeyLevel::plugin, json::Value("1"), "\"0\"");
    report.recordChange("defaultValue", KeyLevel::parameter, json::Value("3"), "\"2\"");
    EXPECT_EQ(report.overriddenDefaults,
              Entries({"MtlA::diffuse  \"0\" -> \"1\"", "MtlA::diffuse  \"2\" -> \"3\""}));
}

TEST(CombineReport, LeavesTwoBlanksWhereTheOldValueIsMissing) {
    CombineReport report = reportAt("MtlA", "diffuse");
    report.recordChange("type", KeyLevel::plugin, json::Value("light"), "");
    report.recordChange("type", KeyLevel::parameter, json::Value("color"), "");
    report.recordChange("defaultValue", KeyLevel::parameter, json::Value("1"), "");
    EXPECT_EQ(report.changedPluginTypes, Entries({"MtlA   -> \"light\""}));
    EXPECT_EQ(report.changedParameterTypes, Entries({"MtlA::diffuse   -> \"color\""}));
    EXPECT_EQ(report.overriddenDefaults, Entries({"MtlA::diffuse   -> \"1\""}));
}

TEST(CombineReport, WritesNewValuesAsCompactJson) {
    CombineReport report = reportAt("MtlA", "file");
    report.recordChange("defaultValue", KeyLevel::parameter, json::Value("a/\"b\""), "null");
    EXPECT_EQ(report.overriddenDefaults, Entries({"MtlA::file  null -> \"a\\/\\\"b\\\"\""}));
}

TEST(CombineReport, RecordsNoOtherChange) {
    CombineReport report = reportAt("MtlA", "diffuse");
    for (const char* key : {"handler", "listType", "Type", "deprecated", "duplicated", ""}) {
        report.recordChange(key, KeyLevel::plugin, json::Value("new"), "\"old\"");
        report.recordChange(key, KeyLevel::parameter, json::Value("new"), "\"old\"");
    }
    EXPECT_EQ(report.changedPluginTypes, Entries());
    EXPECT_EQ(report.changedParameterTypes, Entries());
    EXPECT_EQ(report.overriddenDefaults, Entries());
    EXPECT_EQ(report.deprecations, Entries());
    EXPECT_EQ(report.duplications, Entries());
}

TEST(CombineReport, RecordsTheDeprecationOfAPluginWithNothingBehindTheColons) {
    CombineReport report = reportAt("MtlA", "");
    report.recordDeprecation();
    EXPECT_EQ(report.deprecations, Entries({"MtlA::"}));
}

TEST(CombineReport, RecordsTheDeprecationOfAParameter) {
    CombineReport report = reportAt("MtlA", "diffuse");
    report.recordDeprecation();
    EXPECT_EQ(report.deprecations, Entries({"MtlA::diffuse"}));
}

TEST(CombineReport, RecordsADuplicationWithTheLiveText) {
    CombineReport report = reportAt("MtlA", "diffuse");
    report.recordDuplication("type", "\"color\"");
    EXPECT_EQ(report.duplications, Entries({"MtlA::diffuse::type::\"color\""}));
}

TEST(SummaryText, OfNothingIsSixHeadings) {
    EXPECT_EQ(summaryText({}),
              "Number of changed plugin types: 0\n"
              "\n"
              "Changed parameter types: 0\n"
              "\n"
              "Overriding defaultValue:0\n"
              "\n"
              "Number of handler integrity checks failures: 0\n"
              "\n"
              "Number of deprecations: 0\n"
              "\n"
              "Number of duplications: 0\n");
}

TEST(SummaryText, ListsEveryEntryUnderItsHeading) {
    CombineReport report;
    report.changedPluginTypes = {"plugin type"};
    report.changedParameterTypes = {"parameter type"};
    report.overriddenDefaults = {"default"};
    report.handlerCheckFailures = {"failure"};
    report.deprecations = {"deprecation"};
    report.duplications = {"duplication"};
    EXPECT_EQ(summaryText(report),
              "Number of changed plugin types: 1\n"
              "1. plugin type\n"
              "\n"
              "Changed parameter types: 1\n"
              "1. parameter type\n"
              "\n"
              "Overriding defaultValue:1\n"
              "1. default\n"
              "\n"
              "Number of handler integrity checks failures: 1\n"
              "1. failure\n"
              "\n"
              "Number of deprecations: 1\n"
              "1. deprecation\n"
              "\n"
              "Number of duplications: 1\n"
              "1. duplication\n");
}

TEST(SummaryText, SortsChangesAndFailuresInByteOrderAndKeepsTheOrderOfTheOthers) {
    const std::vector<std::string> entries = {"b", "a", "\xc3\xa9", "B"};
    CombineReport report;
    report.changedPluginTypes = entries;
    report.changedParameterTypes = entries;
    report.overriddenDefaults = entries;
    report.handlerCheckFailures = entries;
    report.deprecations = entries;
    report.duplications = entries;
    const std::string sorted = "4\n1. B\n2. a\n3. b\n4. \xc3\xa9\n";
    const std::string kept = "4\n1. b\n2. a\n3. \xc3\xa9\n4. B\n";
    EXPECT_EQ(summaryText(report),
              "Number of changed plugin types: " + sorted +                     //
                  "\nChanged parameter types: " + sorted +                      //
                  "\nOverriding defaultValue:" + sorted +                       //
                  "\nNumber of handler integrity checks failures: " + sorted +  //
                  "\nNumber of deprecations: " + kept +                         //
                  "\nNumber of duplications: " + kept);
}

}  // namespace
}  // namespace metagen

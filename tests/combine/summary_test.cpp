#include "combine/combine_report.h"

#include <gtest/gtest.h>

namespace metagen {
namespace {

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

#include "diff/diff.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "json/document.h"

namespace metagen {
namespace {

std::string reportOf(std::string_view left, std::string_view right, const std::string& path = "") {
    const json::Document leftDocument{std::string(left)};
    const json::Document rightDocument{std::string(right)};
    std::string report;
    diffObjects(json::asObject(leftDocument.root()), json::asObject(rightDocument.root()), report,
                path);
    return report;
}

TEST(DiffObjects, ReportsNothingForEqualObjects) {
    EXPECT_EQ(reportOf("{}", "{}"), "");
    EXPECT_EQ(reportOf(R"({"a":[1,{"b":null}],"c":{"d":"e"}})",
                       R"({"c":{"d":"e"},"a":[1.0,{"b":null}]})"),
              "");
}

TEST(DiffObjects, ComparesNumbersAsDoubles) {
    EXPECT_EQ(reportOf(R"({"a":1})", R"({"a":1.0})"), "");
    EXPECT_EQ(reportOf(R"({"a":0})", R"({"a":-0.0})"), "");
    EXPECT_EQ(reportOf(R"({"a":9007199254740993})", R"({"a":9007199254740992})"), "");
    EXPECT_EQ(reportOf(R"({"a":1})", R"({"a":1.5})"), ":a different values are 1 and 1.5\n");
}

TEST(DiffObjects, ReportsAMemberOfOneSideOnly) {
    EXPECT_EQ(reportOf(R"({"a":1})", "{}"), ":a is only present on left side\n");
    EXPECT_EQ(reportOf("{}", R"({"a":{"b":1}})"), ":a is only present on right side\n");
}

TEST(DiffObjects, ReportsTheNullThatOneSideLacks) {
    EXPECT_EQ(reportOf(R"({"a":{"x":null}})", R"({"a":{}})"),
              ":a:x is only present on left side\n");
}

TEST(DiffObjects, ReportsDifferentValues) {
    EXPECT_EQ(reportOf(R"({"version":3})", R"({"version":4})"),
              ":version different values are 3 and 4\n");
}

TEST(DiffObjects, ComparesTheKindOfValues) {
    EXPECT_EQ(reportOf(R"({"a":null,"b":0,"c":""})", R"({"a":false,"b":"0","c":[]})"),
              ":a different values are null and false\n"
              ":b different values are 0 and \"0\"\n"
              ":c different values are \"\" and []\n");
}

TEST(DiffObjects, NamesEveryLevelOfAPath) {
    const char* left = R"({"plugins":{"MtlA":{"params":{"diffuse":{"defaultValue":"A"}}}}})";
    const char* right =
        R"({"plugins":{"MtlB":{},"MtlA":{"params":{"diffuse":{"defaultValue":"B"}}}}})";
    EXPECT_EQ(reportOf(left, right),
              ":plugins:MtlA:params:diffuse:defaultValue different values are \"A\" and \"B\"\n"
              ":plugins:MtlB is only present on right side\n");
}

TEST(DiffObjects, BeginsAtTheGivenPath) {
    EXPECT_EQ(reportOf(R"({"a":{"b":1}})", R"({"a":{}})", ":plugins:MtlA"),
              ":plugins:MtlA:a:b is only present on left side\n");
}

TEST(DiffObjects, DoesNotEscapeNames) {
    EXPECT_EQ(reportOf(R"({"a:b\"\n":{"/":1}})", R"({"a:b\"\n":{}})"),
              ":a:b\"\n:/ is only present on left side\n");
}

TEST(DiffObjects, ReportsInByteOrderDepthFirst) {
    EXPECT_EQ(reportOf(R"({"a":1,"B":{"z":1,"y":1},"\u00e9":1})", R"({"c":1,"B":{"x":1}})"),
              ":B:x is only present on right side\n"
              ":B:y is only present on left side\n"
              ":B:z is only present on left side\n"
              ":a is only present on left side\n"
              ":c is only present on right side\n"
              ":\u00e9 is only present on left side\n");
}

TEST(DiffObjects, ComparesArraysWhole) {
    EXPECT_EQ(reportOf(R"({"list":[1,2]})", R"({"list":[1,2,3]})"),
              ":list different values are [1,2] and [1,2,3]\n");
    EXPECT_EQ(reportOf(R"({"list":[1,{"a":2}]})", R"({"list":[1,{"a":3}]})"),
              ":list different values are [1,{\"a\":2}] and [1,{\"a\":3}]\n");
    EXPECT_EQ(reportOf(R"({"list":[1,2]})", R"({"list":[2,1]})"),
              ":list different values are [1,2] and [2,1]\n");
}

TEST(DiffObjects, PrintsTheObjectThatStandsAgainstAnotherKindWhole) {
    EXPECT_EQ(reportOf(R"({"a":{"b":1}})", R"({"a":2})"),
              ":a different values are {\"b\":1} and 2\n");
    EXPECT_EQ(reportOf(R"({"a":[]})", R"({"a":{"c":{},"b":[{}]}})"),
              ":a different values are [] and {\"b\":[{}],\"c\":{}}\n");
    EXPECT_EQ(reportOf(R"({"a":{}})", R"({"a":null})"), ":a different values are {} and null\n");
}

TEST(DiffObjects, WritesValuesAsTheJsonLibraryDoes) {
    EXPECT_EQ(reportOf(R"({"a":"/\u00e9\n","b":0.1,"c":true})",
                       R"({"a":"\"","b":1e300,"c":9007199254740992})"),
              ":a different values are \"\\/\u00e9\\n\" and \"\\\"\"\n"
              ":b different values are 0.10000000000000001 and 1.0000000000000001e+300\n"
              ":c different values are true and 9007199254740992\n");
}

TEST(DiffObjects, NamesGoOnBehindANul) {
    EXPECT_EQ(reportOf(R"({"a\u0000b":{"c\u0000d":1}})", R"({"a\u0000b":{}})"),
              std::string(":a\0b:c\0d is only present on left side\n", 38));
}

TEST(DiffObjects, AppendsToTheReport) {
    std::string report = "before\n";
    const json::Document left(R"({"a":1})");
    diffObjects(json::asObject(left.root()), json::Object(), report, "");
    EXPECT_EQ(report, "before\n:a is only present on left side\n");
}

}  // namespace
}  // namespace metagen

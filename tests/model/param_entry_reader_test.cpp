#include <gtest/gtest.h>

#include <stdexcept>

#include "model/model_reader.h"
#include "model/reading.h"

namespace metagen {
namespace {

std::string read(std::string_view text, std::uint32_t originFlag = 0) {
    const json::Value document = documentOf(text);
    return textOf(readParamEntry(json::asObject(document), originFlag));
}

/// What is read of a float parameter with these members besides its type.
std::string readFloat(const std::string& members) {
    return read(R"({"type":"float",)" + members + "}");
}

template <typename Exception>
std::string errorOf(std::string_view text) {
    return messageOf<Exception>([text] { read(text); });
}

const std::string plainFloat =
    "state -1, flags 0, file -1, list 0, type float, default none, scale 0 1";

TEST(ReadParamEntry, StartsFromTheNeutralValues) {
    EXPECT_EQ(read(R"({"type":"float"})"), plainFloat);
}

TEST(ReadParamEntry, KeepsTheOriginFlag) {
    EXPECT_EQ(read(R"({"type":"float"})", param_flag::fromUserData),
              "state -1, flags 1, file -1, list 0, type float, default none, scale 0 1");
}

TEST(ReadParamEntry, TheTypeNameOfAListIsItsElementType) {
    EXPECT_EQ(read(R"({"type":"list","listType":"color"})"),
              "state -1, flags 0, file -1, list 1, type color, default none, scale 0 1");
}

TEST(ReadParamEntry, AListWithoutElementTypeIsAListOfLists) {
    EXPECT_EQ(read(R"({"type":"list"})"),
              "state -1, flags 0, file -1, list 1, type list, default none, scale 0 1");
}

TEST(ReadParamEntry, TheElementTypeOfASingleValueIsNotLookedAt) {
    EXPECT_EQ(readFloat(R"("listType":7)"), plainFloat);
}

TEST(ReadParamEntry, TakesTheDefaultAsText) {
    EXPECT_EQ(readFloat(R"("defaultValue":"0.5")"),
              "state -1, flags 0, file -1, list 0, type float, default text '0.5', scale 0 1");
    EXPECT_EQ(readFloat(R"("defaultValue":"")"),
              "state -1, flags 0, file -1, list 0, type float, default text '', scale 0 1");
}

std::string fileBrowser(const std::string& info) {
    return readFloat(R"("handler":"FileBrowserHandler","handlerinfo":)" + info);
}

const std::string aFile = "state -1, flags 2, file 1, list 0, type float, default none, scale 0 1";
const std::string aFileWithLoadModeOne =
    "state -1, flags 6, file 2, list 0, type float, default none, scale 0 1";

TEST(ReadParamEntry, AFileBrowserMakesAFile) { EXPECT_EQ(fileBrowser("{}"), aFile); }

TEST(ReadParamEntry, OnlyTheLoadModeOneIsMarked) {
    EXPECT_EQ(fileBrowser(R"({"loadMode":"1"})"), aFileWithLoadModeOne);
    EXPECT_EQ(fileBrowser(R"({"loadMode":"0"})"), aFile);
    EXPECT_EQ(fileBrowser(R"({"loadMode":"11"})"), aFile);
    EXPECT_EQ(fileBrowser(R"({"loadMode":""})"), aFile);
    EXPECT_EQ(fileBrowser(R"({"loadMode":" 1"})"), aFile);
}

TEST(ReadParamEntry, AFileInUserDataKeepsBothFlags) {
    EXPECT_EQ(read(R"({"type":"string","handler":"FileBrowserHandler","handlerinfo":{}})", 1),
              "state -1, flags 3, file 1, list 0, type string, default none, scale 0 1");
}

TEST(ReadParamEntry, AFileBrowserTakesHandlerAndInfo) {
    EXPECT_EQ(readFloat(R"("handler":"FileBrowserHandler")"), plainFloat);
    EXPECT_EQ(readFloat(R"("handlerinfo":{"loadMode":"1"})"), plainFloat);
    EXPECT_EQ(readFloat(R"("handler":1)"), plainFloat);
    EXPECT_EQ(readFloat(R"("handlerinfo":1)"), plainFloat);
}

TEST(ReadParamEntry, OtherHandlersLeaveTheInfoAlone) {
    EXPECT_EQ(readFloat(R"("handler":"filebrowserhandler","handlerinfo":1)"), plainFloat);
    EXPECT_EQ(readFloat(R"("handler":"FileBrowserHandlers","handlerinfo":{"loadMode":"1"})"),
              plainFloat);
}

TEST(ReadParamEntry, WrongKindsInAFileBrowserAreErrors) {
    EXPECT_EQ(errorOf<std::runtime_error>(R"({"type":"float","handler":1,"handlerinfo":{}})"),
              notAString);
    EXPECT_EQ(messageOf<std::runtime_error>([] { fileBrowser("1"); }), notAnObject);
    EXPECT_EQ(messageOf<std::runtime_error>([] { fileBrowser(R"({"loadMode":1})"); }), notAString);
}

TEST(ReadParamEntry, TruncatesScalingNumbersTowardZero) {
    EXPECT_EQ(readFloat(R"("scaling":{"unit":2.9,"power":-1.5})"),
              "state -1, flags 0, file -1, list 0, type float, default none, scale 2 -1");
}

TEST(ReadParamEntry, ScalingNumbersBeyond32BitsAreTheSmallest) {
    EXPECT_EQ(readFloat(R"("scaling":{"unit":2147483648,"power":-1e300})"),
              "state -1, flags 0, file -1, list 0, type float, default none, "
              "scale -2147483648 -2147483648");
}

TEST(ReadParamEntry, ReadsTheInverse) {
    EXPECT_EQ(readFloat(R"("scaling":{"unit":1,"inverse":true})"),
              "state -1, flags 0, file -1, list 0, type float, default none, scale 1 1 inverse");
    EXPECT_EQ(readFloat(R"("scaling":{"unit":1,"inverse":false})"),
              "state -1, flags 0, file -1, list 0, type float, default none, scale 1 1");
}

TEST(ReadParamEntry, PassesOverScalingMembersOfOtherKinds) {
    EXPECT_EQ(readFloat(R"("scaling":{"unit":"1","power":true,"inverse":1,"conditions":{}})"),
              plainFloat);
    EXPECT_EQ(readFloat(R"("scaling":{})"), plainFloat);
}

TEST(ReadParamEntry, ReadsConditionsInTheirOrder) {
    EXPECT_EQ(readFloat(R"("scaling":{"conditions":[
            {"op":1.9,"ref":"mode","value":2.5},{"op":-1,"ref":"b","value":[{"c":null}]}]})"),
              plainFloat + R"(, if 1 'mode' 2.5, if -1 'b' [{"c":null}])");
}

TEST(ReadParamEntry, AConditionHasNeutralValuesForWhatDoesNotFit) {
    EXPECT_EQ(readFloat(R"("scaling":{"conditions":[{},{"op":"1","ref":2,"value":"x"}]})"),
              plainFloat + R"(, if 0 '' null, if 0 '' "x")");
}

TEST(ReadParamEntry, PassesOverConditionsThatAreNoObjects) {
    EXPECT_EQ(readFloat(R"("scaling":{"conditions":[1,null,"a",[],{"ref":"b"}]})"),
              plainFloat + ", if 0 'b' null");
}

TEST(ReadParamEntry, TheTypeIsRequired) {
    EXPECT_EQ(errorOf<std::out_of_range>("{}"), "invalid map<K, T> key");
}

TEST(ReadParamEntry, WrongKindsAreErrors) {
    EXPECT_EQ(errorOf<std::runtime_error>(R"({"type":1})"), notAString);
    EXPECT_EQ(errorOf<std::runtime_error>(R"({"type":"list","listType":null})"), notAString);
    EXPECT_EQ(errorOf<std::runtime_error>(R"({"type":"float","scaling":[]})"), notAnObject);
    EXPECT_EQ(errorOf<std::runtime_error>(R"({"type":"float","defaultValue":1})"), notAString);
}

TEST(ReadParamEntry, ABadScalingIsReportedBeforeAnUnknownType) {
    EXPECT_EQ(errorOf<std::runtime_error>(R"({"type":"odd","scaling":1})"), notAnObject);
}

// The message goes to standard output, which the command tests compare.
TEST(ReadParamEntryDeathTest, AnUnknownTypeEndsTheProcess) {
    for (const char* text : {R"({"type":"Float"})", R"({"type":"none"})", R"({"type":""})",
                             R"({"type":"list","listType":"none"})"}) {
        EXPECT_EXIT(read(text), testing::ExitedWithCode(1), "^$") << text;
    }
}

TEST(ReadParamEntryDeathTest, AnUnknownTypeIsReportedBeforeABadDefault) {
    EXPECT_EXIT(read(R"({"type":"odd","defaultValue":1})"), testing::ExitedWithCode(1), "^$");
}

}  // namespace
}  // namespace metagen

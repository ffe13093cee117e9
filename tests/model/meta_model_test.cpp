#include "model/meta_model.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "model/reading.h"
#include "support/numbers.h"

namespace metagen {
namespace {

/// Type, code and flags, and of default and scaling what there is.
std::string textOf(const MetaParameter& parameter) {
    std::string text(parameter.typeName);
    text += "/" + std::to_string(parameter.code) + "/" + std::to_string(parameter.flags);
    if (parameter.defaultText) text.append(" '").append(*parameter.defaultText).append("'");
    if (parameter.scaling == nullptr) return text;
    const Scaling& scaling = *parameter.scaling;
    text += ", scale " + std::to_string(scaling.unit) + " " + std::to_string(scaling.power);
    if (scaling.inverse) text += " inverse";
    for (const ScaleCondition& condition : scaling.conditions) {
        text.append(", if ").append(std::to_string(condition.op)).append(" '");
        text.append(condition.ref).append("' ");
        if (condition.value) appendGeneral(text, *condition.value);
    }
    return text;
}

/// The plugins with their categories and parameters.
std::string read(const std::string& plugins) {
    const ReadModel model(plugins);
    std::string text;
    for (const MetaPlugin& plugin : static_cast<const MetaModel&>(model)) {
        text.append("[").append(plugin.name).append(": ");
        text.append(plugin.category.value_or("-")).append("]");
        for (const MetaParameter& parameter : plugin.parameters) {
            text.append(" ").append(parameter.name).append("=").append(textOf(parameter));
        }
    }
    return text;
}

template <typename Exception>
std::string errorOf(const std::string& plugins) {
    return messageOf<Exception>([&] { read(plugins); });
}

TEST(ReadMeta, KeepsPluginsWithoutAnything) {
    EXPECT_EQ(read("{'A': {}, 'B': {'params': {}}}"), "[A: -][B: -]");
}

TEST(ReadMeta, ReadsParametersAndUserDataInTheOrderOfNames) {
    EXPECT_EQ(read("{'A': {'userData': {'c': {'type': 'bool'}, 'a': {'type': 'color'}},"
                   " 'params': {'d': {'type': 'float'}, 'b': {'type': 'integer'}}}}"),
              "[A: -] a=color/5/1 b=integer/0/0 c=bool/3/1 d=float/1/0");
}

TEST(ReadMeta, TakesUserDataWithoutParameters) {
    EXPECT_EQ(read("{'A': {'userData': {'a': {'type': 'color'}}}}"), "[A: -] a=color/5/1");
}

TEST(ReadMeta, NamesAreInTheOrderOfTheirBytes) {
    EXPECT_EQ(read("{'b': {}, '\xc3\xa4': {}, 'B': {}, '_': {}, '': {}, 'ab': {}, 'a': {}}"),
              "[: -][B: -][_: -][a: -][ab: -][b: -][\xc3\xa4: -]");
    EXPECT_EQ(read("{'P': {'params': {'\xff': {'type': 'bool'}},"
                   " 'userData': {'z': {'type': 'bool'}, 'Z': {'type': 'bool'}}}}"),
              "[P: -] Z=bool/3/1 z=bool/3/1 \xff=bool/3/0");
}

TEST(ReadMeta, ParametersWinOverUserDataOfTheirName) {
    EXPECT_EQ(read("{'A': {'params': {'a': {'type': 'float'}, 'c': {'type': 'float'}},"
                   " 'userData': {'a': {'type': 'color'}, 'b': {'type': 'color'},"
                   " 'c': {'type': 'color'}}}}"),
              "[A: -] a=float/1/0 b=color/5/1 c=float/1/0");
}

TEST(ReadMeta, UserDataThatAreDroppedAreStillRead) {
    EXPECT_EQ(errorOf<std::out_of_range>(
                  "{'A': {'params': {'a': {'type': 'float'}}, 'userData': {'a': {}}}}"),
              missingMessage);
}

TEST(ReadMeta, TheCategoryIsTheTypeOfThePlugin) {
    EXPECT_EQ(read("{'A': {'type': 'material'}, 'B': {'type': ''}, 'C': {'type': 1}, 'D': {}}"),
              "[A: material][B: ][C: -][D: -]");
}

TEST(ReadMeta, BorrowsFromTheDocument) {
    const json::Document document =
        documentOf("{'A': {'type': 'material', 'params': {'a': {'type': 'float'}}}}");
    Arena arena;
    const MetaModel model = readMeta(objectOf(document), arena);
    const char* const begin = document.text().data();
    EXPECT_EQ(at(model, "A").category->data(), begin + document.text().find("material"));
    EXPECT_EQ(at(at(model, "A").parameters, "a").typeName.data(),
              begin + document.text().find("float"));
}

TEST(ReadMeta, TakesObjectsOnly) {
    for (const char* plugins :
         {"{'A': null}", "{'A': {'params': 1}}", "{'A': {'userData': 1}}",
          "{'A': {'params': {'a': null}}}", "{'A': {'userData': {'a': 'x'}}}"}) {
        EXPECT_EQ(errorOf<std::runtime_error>(plugins), noObjectMessage) << plugins;
    }
}

TEST(MetaModel, EntriesAreFoundByTheirNames) {
    const ReadModel plugins("{'': {}, 'a': {}, 'ab': {}, 'c': {}}");
    const MetaModel& model = plugins;
    for (const char* name : {"", "a", "ab", "c"}) EXPECT_EQ(at(model, name).name, name);
    for (const char* name : {"b", "d"}) {
        EXPECT_EQ(messageOf<std::out_of_range>([&] { at(model, name); }), missingMessage);
    }
    EXPECT_EQ(messageOf<std::out_of_range>([] { at(MetaModel(), "a"); }), missingMessage);
}

/// What is read of a parameter with these members, or of user data.
std::string readParameter(const std::string& members, const std::string& key = "params") {
    return read("{'A': {'" + key + "': {'p': {" + members + "}}}}").substr(9);
}

/// The same besides the type float.
std::string readFloat(const std::string& members) {
    return readParameter("'type': 'float', " + members);
}

template <typename Exception>
std::string parameterError(const std::string& members) {
    return messageOf<Exception>([&] { readParameter(members); });
}

TEST(MetaParameter, HasATypeAlone) { EXPECT_EQ(readParameter("'type': 'float'"), "float/1/0"); }

TEST(MetaParameter, OfUserDataHasTheirFlag) {
    EXPECT_EQ(readParameter("'type': 'float'", "userData"), "float/1/1");
}

TEST(MetaParameter, AListHasTheNameOfItsElements) {
    EXPECT_EQ(readParameter("'type': 'list', 'listType': 'color'"), "color/105/0");
}

TEST(MetaParameter, AListWithoutElementTypeIsAListOfLists) {
    EXPECT_EQ(readParameter("'type': 'list'"), "list/12/0");
    EXPECT_EQ(readParameter("'type': 'list', 'listType': 'list'"), "list/12/0");
}

TEST(MetaParameter, TheElementTypeOfASingleValueIsNotLookedAt) {
    EXPECT_EQ(readFloat("'listType': 7"), "float/1/0");
}

TEST(MetaParameter, TakesTheDefaultAsText) {
    EXPECT_EQ(readFloat("'defaultValue': '0.5'"), "float/1/0 '0.5'");
    EXPECT_EQ(readFloat("'defaultValue': ''"), "float/1/0 ''");
}

std::string fileBrowser(const std::string& info) {
    return readFloat("'handler': 'FileBrowserHandler', 'handlerinfo': " + info);
}

TEST(MetaParameter, AFileBrowserMakesAFile) { EXPECT_EQ(fileBrowser("{}"), "float/1/2"); }

TEST(MetaParameter, OnlyTheLoadModeOneIsMarked) {
    EXPECT_EQ(fileBrowser("{'loadMode': '1'}"), "float/1/6");
    for (const std::string mode : {"0", "11", "", " 1"}) {
        EXPECT_EQ(fileBrowser("{'loadMode': '" + mode + "'}"), "float/1/2") << mode;
    }
}

TEST(MetaParameter, AFileInUserDataKeepsBothFlags) {
    EXPECT_EQ(readParameter("'type': 'string', 'handler': 'FileBrowserHandler', 'handlerinfo': {}",
                            "userData"),
              "string/9/3");
}

TEST(MetaParameter, AFileBrowserTakesHandlerAndInfo) {
    for (const char* members :
         {"'handler': 'FileBrowserHandler'", "'handlerinfo': {'loadMode': '1'}", "'handler': 1",
          "'handlerinfo': 1"}) {
        EXPECT_EQ(readFloat(members), "float/1/0") << members;
    }
}

TEST(MetaParameter, OtherHandlersLeaveTheInfoAlone) {
    EXPECT_EQ(readFloat("'handler': 'filebrowserhandler', 'handlerinfo': 1"), "float/1/0");
    EXPECT_EQ(readFloat("'handler': 'FileBrowserHandlers', 'handlerinfo': {'loadMode': '1'}"),
              "float/1/0");
}

TEST(MetaParameter, WrongKindsInAFileBrowserAreErrors) {
    EXPECT_EQ(
        parameterError<std::runtime_error>("'type': 'float', 'handler': 1, 'handlerinfo': {}"),
        noTextMessage);
    EXPECT_EQ(messageOf<std::runtime_error>([] { fileBrowser("1"); }), noObjectMessage);
    EXPECT_EQ(messageOf<std::runtime_error>([] { fileBrowser("{'loadMode': 1}"); }), noTextMessage);
}

std::string scaling(const std::string& members) {
    return readFloat("'scaling': {" + members + "}");
}

TEST(MetaParameter, TruncatesScalingNumbersTowardZero) {
    EXPECT_EQ(scaling("'unit': 2.9, 'power': -1.5"), "float/1/0, scale 2 -1");
}

TEST(MetaParameter, ScalingNumbersBeyond32BitsAreTheSmallest) {
    EXPECT_EQ(scaling("'unit': 2147483648, 'power': -1e300"),
              "float/1/0, scale -2147483648 -2147483648");
}

TEST(MetaParameter, ReadsTheInverse) {
    EXPECT_EQ(scaling("'unit': 1, 'inverse': true"), "float/1/0, scale 1 1 inverse");
    EXPECT_EQ(scaling("'unit': 1, 'inverse': false"), "float/1/0, scale 1 1");
}

TEST(MetaParameter, WithoutUnitDoesNotScale) {
    for (const char* members : {"", "'unit': 0.9, 'power': 2", "'conditions': [{'op': 1}]",
                                "'unit': '1', 'power': true, 'inverse': 1, 'conditions': {}"}) {
        EXPECT_EQ(scaling(members), "float/1/0") << members;
    }
}

TEST(MetaParameter, PassesOverScalingMembersOfOtherKinds) {
    EXPECT_EQ(scaling("'unit': 1, 'power': true, 'inverse': 1, 'conditions': {}"),
              "float/1/0, scale 1 1");
}

std::string conditions(const std::string& elements) {
    const std::string text = scaling("'unit': 1, 'conditions': [" + elements + "]");
    const std::string before = "float/1/0, scale 1 1, ";
    EXPECT_EQ(text.substr(0, before.size()), before);
    return text.substr(before.size());
}

TEST(MetaParameter, ReadsConditionsInTheirOrder) {
    EXPECT_EQ(conditions("{'op': 1.9, 'ref': 'mode', 'value': 2.5},"
                         " {'op': -1, 'ref': 'b', 'value': [{'c': null}]}"),
              "if 1 'mode' 2.5, if -1 'b' ");
}

TEST(MetaParameter, AConditionHasNeutralValuesForWhatDoesNotFit) {
    EXPECT_EQ(conditions("{}, {'op': '1', 'ref': 2, 'value': 'x'}"), "if 0 '' , if 0 '' ");
}

TEST(MetaParameter, PassesOverConditionsThatAreNoObjects) {
    EXPECT_EQ(conditions("1, null, 'a', [], {'ref': 'b'}"), "if 0 'b' ");
}

TEST(MetaParameter, TheTypeIsRequired) {
    EXPECT_EQ(parameterError<std::out_of_range>(""), missingMessage);
}

TEST(MetaParameter, WrongKindsAreErrors) {
    EXPECT_EQ(parameterError<std::runtime_error>("'type': 1"), noTextMessage);
    EXPECT_EQ(parameterError<std::runtime_error>("'type': 'list', 'listType': null"),
              noTextMessage);
    EXPECT_EQ(parameterError<std::runtime_error>("'type': 'float', 'scaling': []"),
              noObjectMessage);
    EXPECT_EQ(parameterError<std::runtime_error>("'type': 'float', 'defaultValue': 1"),
              noTextMessage);
}

TEST(MetaParameter, WhatIsWrongShowsInTheOrderTypeFileBrowserScaling) {
    const std::string badScaling = ", 'scaling': 1";
    const std::string badBrowser = ", 'handler': 'FileBrowserHandler', 'handlerinfo': 1";
    const std::string badMode = ", 'handler': 'FileBrowserHandler', 'handlerinfo': {'loadMode': 1}";
    EXPECT_EQ(parameterError<std::runtime_error>("'type': 'list', 'listType': 1" + badBrowser),
              noTextMessage);
    EXPECT_EQ(parameterError<std::runtime_error>("'type': 'odd'" + badMode + badScaling),
              noTextMessage);
    EXPECT_EQ(parameterError<std::runtime_error>("'type': 'odd'" + badScaling), noObjectMessage);
}

// The message goes to standard output, which the command tests compare.
TEST(MetaParameterDeathTest, AnUnknownTypeEndsTheProcess) {
    for (const char* members :
         {"'type': 'Float'", "'type': 'none'", "'type': ''", "'type': 'list', 'listType': 'none'",
          // It is reported before a bad default.
          "'type': 'odd', 'defaultValue': 1"}) {
        EXPECT_EXIT(readParameter(members), testing::ExitedWithCode(1), "^$") << members;
    }
}

}  // namespace
}  // namespace metagen

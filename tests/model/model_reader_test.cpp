#include "model/model_reader.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "model/reading.h"

namespace metagen {
namespace {

/// The model's plugins with their categories, and their parameters with type and flags.
std::string outline(const CombinedModel& model) {
    std::string text;
    for (const auto& [name, plugin] : model) {
        text.append("[").append(name).append(": ").append(textOf(plugin.category)).append("]");
        for (const auto& [paramName, param] : plugin.params) {
            text.append(" ").append(paramName).append("=").append(textOf(param.typeName));
            text.append("/").append(std::to_string(param.flags));
        }
    }
    return text;
}

std::string read(const std::string& plugins, const std::string& mode) {
    const json::Value document = documentOf(plugins);
    return outline(readCombinedModel(json::asObject(document), mode));
}

std::string readMeta(const std::string& plugins) { return read(plugins, "meta"); }

std::string readHandlers(const std::string& plugins) { return read(plugins, "handler"); }

template <typename Exception>
std::string errorOf(const std::string& plugins, const std::string& mode) {
    return messageOf<Exception>([&] { read(plugins, mode); });
}

TEST(ReadCombinedModel, MetaKeepsPluginsWithoutAnything) {
    EXPECT_EQ(readMeta(R"({"A":{},"B":{"params":{}}})"), "[A: -][B: -]");
}

TEST(ReadCombinedModel, MetaReadsParametersAndUserDataInTheOrderOfNames) {
    EXPECT_EQ(readMeta(R"({"A":{"userData":{"c":{"type":"bool"},"a":{"type":"color"}},
                               "params":{"d":{"type":"float"},"b":{"type":"integer"}}}})"),
              "[A: -] a=color/1 b=integer/0 c=bool/1 d=float/0");
}

TEST(ReadCombinedModel, MetaTakesUserDataWithoutParameters) {
    EXPECT_EQ(readMeta(R"({"A":{"userData":{"a":{"type":"color"}}}})"), "[A: -] a=color/1");
}

TEST(ReadCombinedModel, NamesAreInTheOrderOfTheirBytes) {
    EXPECT_EQ(readMeta("{\"b\":{},\"\xc3\xa4\":{},\"B\":{},\"_\":{},\"\":{},\"ab\":{},\"a\":{}}"),
              "[: -][B: -][_: -][a: -][ab: -][b: -][\xc3\xa4: -]");
    EXPECT_EQ(readMeta("{\"P\":{\"params\":{\"\xff\":{\"type\":\"bool\"}},"
                       "\"userData\":{\"z\":{\"type\":\"bool\"},\"Z\":{\"type\":\"bool\"}}}}"),
              "[P: -] Z=bool/1 z=bool/1 \xff=bool/0");
}

TEST(ReadCombinedModel, ParametersWinOverUserDataOfTheirName) {
    EXPECT_EQ(readMeta(R"({"A":{"params":{"a":{"type":"float"},"c":{"type":"float"}},
                               "userData":{"a":{"type":"color"},"b":{"type":"color"},
                                           "c":{"type":"color"}}}})"),
              "[A: -] a=float/0 b=color/1 c=float/0");
}

TEST(ReadCombinedModel, UserDataThatAreDroppedAreStillRead) {
    EXPECT_EQ(errorOf<std::out_of_range>(
                  R"({"A":{"params":{"a":{"type":"float"}},"userData":{"a":{}}}})", "meta"),
              "invalid map<K, T> key");
}

TEST(ReadCombinedModel, TheCategoryIsTheTypeOfThePlugin) {
    EXPECT_EQ(readMeta(R"({"A":{"type":"material"},"B":{"type":""},"C":{"type":1},"D":{}})"),
              "[A: material][B: ][C: -][D: -]");
}

TEST(ReadCombinedModel, MetaBorrowsFromTheDocument) {
    const json::Value document =
        documentOf(R"({"A":{"type":"material","params":{"a":{"type":"float"}}}})");
    const json::Object& plugins = json::asObject(document);
    const json::Object& plugin = json::asObject(plugins.at("A"));
    const json::Object& param = json::asObject(json::asObject(plugin.at("params")).at("a"));
    const CombinedModel model = readCombinedModel(plugins, "meta");
    EXPECT_EQ(at(model, "A").category, &json::asString(plugin.at("type")));
    EXPECT_EQ(at(at(model, "A").params, "a").typeName, &json::asString(param.at("type")));
}

TEST(ReadCombinedModel, MetaTakesObjectsOnly) {
    for (const std::string plugins :
         {R"({"A":null})", R"({"A":{"params":1}})", R"({"A":{"userData":1}})",
          R"({"A":{"params":{"a":null}}})", R"({"A":{"userData":{"a":"x"}}})"}) {
        EXPECT_EQ(errorOf<std::runtime_error>(plugins, "meta"), notAnObject) << plugins;
    }
}

const std::string handlerParam = R"({"handler":"DuplicateHandler"})";
const std::string companions = R"("a_duplicate":0,"a_duplicate_output":0)";

TEST(ReadCombinedModel, HandlerModeKeepsHandlerParametersOnly) {
    EXPECT_EQ(readHandlers(R"({"A":{"type":"material","params":{"a":)" + handlerParam +
                           R"(,"b":{"type":"float"},"c":null,"d":)" + handlerParam +
                           R"(},"userData":{)" + companions + "}}}"),
              "[A: -] a=duplicate/4294967295");
}

TEST(ReadCombinedModel, HandlerModeLeavesOutPluginsWithoutHandlerParameters) {
    EXPECT_EQ(readHandlers(R"({"A":{"params":{"a":{"type":"float"}},"userData":{}},
                               "B":{"params":{},"userData":{}},"C":{}})"),
              "");
}

TEST(ReadCombinedModel, HandlerModeTakesParametersWithUserData) {
    EXPECT_EQ(readHandlers(R"({"A":{"params":{"a":)" + handlerParam + "}}}"), "");
    EXPECT_EQ(readHandlers(R"({"A":{"params":1},"B":{"userData":1}})"), "");
}

TEST(ReadCombinedModel, HandlerModeTakesObjectsOnly) {
    for (const std::string plugins : {R"({"A":null})", R"({"A":{"params":1,"userData":{}}})",
                                      R"({"A":{"params":{},"userData":1}})"}) {
        EXPECT_EQ(errorOf<std::runtime_error>(plugins, "handler"), notAnObject) << plugins;
    }
}

TEST(ReadCombinedModel, AnyOtherModeGivesAnEmptyModel) {
    for (const std::string mode : {"", "Meta", "handlers"}) {
        EXPECT_EQ(read(R"({"A":null})", mode), "") << mode;
    }
}

TEST(ReadPluginEntry, AnyOtherModeGivesAnEmptyEntry) {
    const json::Value plugin = documentOf(R"({"type":"material","params":{"a":)" + handlerParam +
                                          R"(},"userData":{)" + companions + "}}");
    const PluginEntry entry = readPluginEntry(plugin, "other");
    EXPECT_TRUE(entry.params.empty());
    EXPECT_EQ(entry.category, nullptr);
}

TEST(NamedEntries, AreFoundByTheirNames) {
    const NamedEntries<int> entries = {{"", 0}, {"a", 1}, {"ab", 2}, {"c", 3}};
    EXPECT_EQ(*find(entries, ""), 0);
    EXPECT_EQ(*find(entries, "ab"), 2);
    EXPECT_EQ(find(entries, "b"), nullptr);
    EXPECT_EQ(find(entries, "d"), nullptr);
    EXPECT_EQ(at(entries, "c"), 3);
}

TEST(NamedEntries, AMissingNameIsAnError) {
    EXPECT_EQ(messageOf<std::out_of_range>([] { at(NamedEntries<int>(), "a"); }),
              "invalid map<K, T> key");
}

}  // namespace
}  // namespace metagen

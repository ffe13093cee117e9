#include "replay_sdk/catalogue_reader.h"

#include <gtest/gtest.h>

#include <limits>

#include "replay_sdk/catalogue_helpers.h"

namespace metagen::replay {
namespace {

std::uint64_t categoriesOf(const std::string& pluginClass) {
    return readCatalogue(R"({"plugins":{"C":)" + pluginClass + "}}")->classes.at(0).categories;
}

TEST(CatalogueReader, ReadsACatalogueOfNothing) {
    const auto catalogue = readCatalogue(R"({"plugins":{}})");
    EXPECT_TRUE(catalogue->classes.empty());
    EXPECT_EQ(catalogue->rendererErrorCode, std::nullopt);
    EXPECT_EQ(catalogue->classNames.form, NameList::Form::everything);
}

TEST(CatalogueReader, ReadsClassesAndParametersAscending) {
    const auto catalogue = readCatalogue(
        R"({"plugins":{"b":{"params":{"y":{"type":"float"},"x":{"type":"float"}}},
                       "A":{"params":{"z":{"type":"float"}}}}})");
    ASSERT_EQ(catalogue->classes.size(), 2U);
    EXPECT_EQ(catalogue->classes[0].name, "A");
    EXPECT_EQ(catalogue->classes[1].name, "b");
    EXPECT_EQ(catalogue->classes[1].firstParameter, 1U);
    EXPECT_EQ(catalogue->classes[1].parameterCount, 2U);
    EXPECT_EQ(catalogue->parameters[1].name, "x");
    EXPECT_EQ(catalogue->parameters[2].name, "y");
}

TEST(CatalogueReader, GivesACategoryTheBitOfItsName) {
    const std::pair<const char*, unsigned> names[] = {
        {"bitmap", 0},  {"BRDF", 1},     {"node", 2},           {"geometry", 3},
        {"light", 4},   {"material", 5}, {"render_channel", 6}, {"settings", 7},
        {"texture", 9}, {"uvw", 15},     {"volumetric", 16}};
    for (const auto& [name, bit] : names)
        EXPECT_EQ(categoriesOf(std::string(R"({"type":")") + name + "\"}"), std::uint64_t{1} << bit)
            << name;
}

TEST(CatalogueReader, GivesAClassAnyCategoryBits) {
    EXPECT_EQ(categoriesOf(R"({"categories":[0,4,63]})"), 0x8000000000000011U);
    EXPECT_EQ(categoriesOf(R"({"categories":[]})"), 0U);
    EXPECT_EQ(categoriesOf(R"({"type":null})"), 0U);
    EXPECT_EQ(categoriesOf("{}"), 0U);
}

TEST(CatalogueReader, GivesAClassATypeTextAndAnId) {
    const auto catalogue = readCatalogue(
        R"({"plugins":{"A":{},"B":{"typeText":"Bee","typeId":"0x8000000000000000"}}})");
    EXPECT_EQ(catalogue->classOfTypeText("A")->name, "A");
    EXPECT_EQ(catalogue->classOfTypeText("Bee")->name, "B");
    EXPECT_EQ(catalogue->classOfTypeText("B"), nullptr);
    EXPECT_EQ(catalogue->classOfTypeId(std::numeric_limits<std::int64_t>::min())->name, "B");
}

TEST(CatalogueReader, KeepsItsOwnTypeIdsApartFromThoseTold) {
    const auto catalogue = readCatalogue(R"({"plugins":{"A":{},"B":{"typeId":4096},"C":{}}})");
    EXPECT_EQ(catalogue->classNamed("A")->typeId, 4097);
    EXPECT_EQ(catalogue->classNamed("B")->typeId, 4096);
    EXPECT_EQ(catalogue->classNamed("C")->typeId, 4098);
}

TEST(CatalogueReader, ReadsTheNamesThatAreListed) {
    const auto catalogue = readCatalogue(
        R"({"classNames":["B","A",null,"B"],
            "plugins":{"A":{"parameterNames":null},
                       "B":{"parameterNames":["p",null,"p"],"params":{"p":{"type":"float"}}}}})");
    EXPECT_EQ(catalogue->classNames.form, NameList::Form::given);
    EXPECT_EQ(catalogue->classNames.names, (std::vector<Text>{"B", "A", std::nullopt, "B"}));
    EXPECT_EQ(catalogue->classes[0].parameterNames.form, NameList::Form::null);
    EXPECT_EQ(catalogue->classes[1].parameterNames.names,
              (std::vector<Text>{"p", std::nullopt, "p"}));
}

TEST(CatalogueReader, ReadsInstances) {
    const auto catalogue = readCatalogue(
        R"({"plugins":{"A":{"typeId":9}},
            "instances":[{"id":-5,"name":"minus","class":"A","propertyNames":{"-1":"m","7":"s"}},
                         {"id":"0x7FFFFFFFFFFF","name":null,"exists":false}]})");
    const PluginInstance& first = catalogue->instances.at(-5);
    EXPECT_EQ(first.name, "minus");
    EXPECT_TRUE(first.exists);
    EXPECT_EQ(first.typeId, 9);
    EXPECT_EQ(first.propertyNames, (std::map<std::int32_t, std::string>{{-1, "m"}, {7, "s"}}));
    const PluginInstance& second = catalogue->instances.at(0x7FFFFFFFFFFF);
    EXPECT_EQ(second.name, std::nullopt);
    EXPECT_FALSE(second.exists);
    EXPECT_EQ(second.typeId, 0);
}

TEST(CatalogueReader, MakesInstancesOfNamesInTexts) {
    const auto catalogue = readCatalogue(
        R"json({"instances":[{"id":1048576,"name":"taken"}],
                "plugins":{"A":{"params":{"p":{"type":"list","listType":"plugin",
                                               "defaultValue":"PluginList(x, y, x)"}}}}})json");
    const auto& references =
        std::get<std::vector<PluginReference>>(catalogue->parameters[0].defaultValue.payload);
    ASSERT_EQ(references.size(), 3U);
    EXPECT_EQ(catalogue->instances.at(references[0].pluginId).name, "x");
    EXPECT_EQ(catalogue->instances.at(references[1].pluginId).name, "y");
    EXPECT_EQ(references[2].pluginId, references[0].pluginId);
    EXPECT_EQ(catalogue->instances.at(1048576).name, "taken");
}

TEST(CatalogueReader, ReadsARendererThatCannotBeCreated) {
    EXPECT_EQ(readCatalogue(R"({"plugins":{},"rendererErrorCode":-7})")->rendererErrorCode, -7);
}

TEST(CatalogueReader, PassesOverComments) {
    EXPECT_EQ(problemOf(R"({"comment":1,"plugins":{"A":{"comment":"a","params":
                            {"p":{"comment":[],"type":"float"}}}}})"),
              "no problem");
}

}  // namespace
}  // namespace metagen::replay

#include "sdk/entry_point_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace metagen {
namespace {

void anyFunction() {}

TEST(EntryPointTable, NamesTheEntryPointsInTheirOrder) {
    std::vector<std::string> names;
    EntryPointTable table;
    const char* missing = fillEntryPoints(table, [&](const char* name) {
        names.emplace_back(name);
        return &anyFunction;
    });
    EXPECT_EQ(missing, nullptr);
    const std::vector<std::string> expected = {
        "Qyra_incrementModuleReferenceCounter",
        "Qyra_enableFrameBuffer",
        "Qyra_QyraRenderer_create",
        "Qyra_QyraRenderer_setUserData",
        "Qyra_QyraRenderer_getPluginClassTypeIDs",
        "Qyra_QyraRenderer_release",
        "C_memory_free",
        "releaseCharString",
        "Qyra_QyraRenderer_getPluginClassNames",
        "getVectorSize",
        "getVectorElement",
        "releaseVector",
        "Qyra_QyraRenderer_getPluginTypeId",
        "Qyra_QyraRenderer_getPluginTypeFromTypeID",
        "Qyra_QyraRenderer_getPluginClassCategories",
        "Qyra_QyraRenderer_getClassPropertyNames",
        "Qyra_QyraRenderer_getPropertyDefinitionFromClass",
        "Qyra_PluginUtils_getPropertyGpuSupport",
        "Qyra_PluginUtils_getPropertyType",
        "Qyra_PluginUtils_getPropertyElementsCount",
        "Qyra_PluginUtils_getPropertyDefaultValue",
        "Qyra_UIGuides_hasType",
        "Qyra_UIGuides_getFloat",
        "Qyra_UIGuides_getFloats",
        "Qyra_QyraRenderer_pluginExistsByID",
        "Qyra_QyraRenderer_getPluginName",
        "Qyra_QyraRenderer_getPropertyNameFromIndexByID",
        "Qyra_QyraRenderer_getPluginTypeIdByID",
    };
    EXPECT_EQ(names, expected);
}

TEST(EntryPointTable, StopsAtTheFirstMissingNameAndKeepsWhatItFilled) {
    int asked = 0;
    EntryPointTable table;
    const char* missing = fillEntryPoints(table, [&](const char* name) -> AnyEntryPoint {
        ++asked;
        return std::string(name) == "C_memory_free" ? nullptr : &anyFunction;
    });
    EXPECT_STREQ(missing, "C_memory_free");
    EXPECT_EQ(asked, 7);
    EXPECT_NE(table.Qyra_QyraRenderer_release, nullptr);
    EXPECT_EQ(table.C_memory_free, nullptr);
    EXPECT_EQ(table.releaseCharString, nullptr);
}

}  // namespace
}  // namespace metagen

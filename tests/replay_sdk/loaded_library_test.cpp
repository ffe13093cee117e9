// The replay SDK as a user of the SDK's interface meets it: loaded by name, called through its
// entry points, unloaded; and what its ledger then says. CMake names the files of catalogue and
// ledger in the environment.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "sdk/entry_point_table.h"
#include "sdk/library_loader.h"

namespace metagen {
namespace {

constexpr std::int32_t guideKind = 22;

std::string readText(const char* path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void writeText(const char* path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

class LoadedLibrary : public testing::Test {
protected:
    static const char* ledgerPath() { return std::getenv("QYRA_REPLAY_LEDGER"); }
    static const char* cataloguePath() { return std::getenv("QYRA_REPLAY_CATALOGUE"); }

    void SetUp() override {
        ASSERT_NE(ledgerPath(), nullptr);
        ASSERT_NE(cataloguePath(), nullptr);
        writeText(ledgerPath(), "of an older run\n");
        load(R"({"plugins":{}})");
    }

    void TearDown() override {
        if (handle != nullptr) unloadLibrary(handle);
    }

    /// Loads the library, in place of the one that is loaded, and creates a renderer.
    void load(const std::string& catalogue) {
        writeText(cataloguePath(), catalogue);
        if (handle != nullptr) unloadLibrary(handle);
        handle = loadFromEnvironment("QYRA_SDK", true);
        ASSERT_NE(handle, nullptr) << lastLoadErrorText("");
        const auto find = [this](const char* name) { return findEntryPoint(handle, name); };
        ASSERT_EQ(fillEntryPoints(sdk, find), nullptr);
        renderer = sdk.Qyra_QyraRenderer_create(nullptr, &errorCode);
    }

    /// Unloads the library and gives the ledger's lines about findings, or "clean".
    std::string unload() {
        unloadLibrary(handle);
        handle = nullptr;
        const std::string ledger = readText(ledgerPath());
        if (ledger.starts_with("clean\n")) return "clean";
        EXPECT_TRUE(ledger.starts_with("not clean\nfinding ")) << ledger;
        return ledger.substr(10, ledger.find("start-up") - 10);
    }

    std::string releaseAndUnload() {
        sdk.Qyra_QyraRenderer_release(renderer);
        return unload();
    }

    /// The definition of the parameter "p" of the class "C".
    const void* definition() {
        return sdk.Qyra_QyraRenderer_getPropertyDefinitionFromClass(renderer, "C", "p");
    }

    std::vector<std::string> takeTexts(void* vector) {
        std::vector<std::string> texts;
        for (std::uint32_t i = 0; i < sdk.getVectorSize(vector); ++i) {
            const char* text = sdk.getVectorElement(vector, i);
            texts.emplace_back(text == nullptr ? "(null)" : text);
        }
        sdk.releaseVector(vector);
        return texts;
    }

    EntryPointTable sdk;
    LibraryHandle handle = nullptr;
    void* renderer = nullptr;
    std::int32_t errorCode = 99;
};

using Texts = std::vector<std::string>;

TEST_F(LoadedLibrary, CreatesAndReleasesARenderer) {
    EXPECT_NE(renderer, nullptr);
    EXPECT_EQ(errorCode, 0);
    sdk.Qyra_QyraRenderer_setUserData(renderer, 0, this);
    EXPECT_EQ(releaseAndUnload(), "clean");
}

TEST_F(LoadedLibrary, RefusesARendererWithItsCode) {
    load(R"({"plugins":{},"rendererErrorCode":7})");
    EXPECT_EQ(renderer, nullptr);
    EXPECT_EQ(errorCode, 7);
    EXPECT_EQ(unload(), "clean");
}

TEST_F(LoadedLibrary, RefusesARendererOfAWrongCatalogueAndReportsItOnce) {
    testing::internal::CaptureStderr();
    load("{");
    EXPECT_EQ(renderer, nullptr);
    EXPECT_EQ(errorCode, -1);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_create(nullptr, nullptr), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              std::string("replay SDK: ") + cataloguePath() + ": line 1: not JSON\n");
    EXPECT_EQ(unload(), "clean");
}

TEST_F(LoadedLibrary, ListsClassesWithTheirTypes) {
    load(R"({"plugins":{"A":{"typeText":"type of A","typeId":77,"categories":[4,63]},
                        "B":{"parameterNames":null}},
             "classNames":["B","A",null,"B"]})");
    EXPECT_EQ(takeTexts(sdk.Qyra_QyraRenderer_getPluginClassNames(renderer)),
              (Texts{"B", "A", "(null)", "B"}));
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginTypeId(renderer, "A"), 77);
    EXPECT_STREQ(sdk.Qyra_QyraRenderer_getPluginTypeFromTypeID(renderer, 77), "type of A");
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginClassCategories(renderer, "type of A"),
              0x8000000000000010U);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getClassPropertyNames(renderer, "B"), nullptr);
    EXPECT_EQ(takeTexts(sdk.Qyra_QyraRenderer_getClassPropertyNames(renderer, "type of A")),
              Texts());
    std::int64_t* ids = nullptr;
    ASSERT_EQ(sdk.Qyra_QyraRenderer_getPluginClassTypeIDs(renderer, &ids), 2U);
    EXPECT_EQ(ids[0], 77);
    EXPECT_EQ(ids[1], sdk.Qyra_QyraRenderer_getPluginTypeId(renderer, "B"));
    sdk.C_memory_free(ids);
    EXPECT_EQ(releaseAndUnload(), "clean");
}

TEST_F(LoadedLibrary, GivesANullListOfClasses) {
    load(R"({"plugins":{"A":{}},"classNames":null})");
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginClassNames(renderer), nullptr);
}

TEST_F(LoadedLibrary, AnswersUnknownNamesNeutrally) {
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginTypeId(renderer, "X"), 0);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginTypeId(renderer, nullptr), 0);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginTypeFromTypeID(renderer, 0), nullptr);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginClassCategories(renderer, nullptr), 0U);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getClassPropertyNames(renderer, "X"), nullptr);
    EXPECT_EQ(definition(), nullptr);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_pluginExistsByID(renderer, 5), 0);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginName(renderer, 5), nullptr);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPropertyNameFromIndexByID(renderer, 5, 1), nullptr);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginTypeIdByID(renderer, 5), 0);
    EXPECT_EQ(releaseAndUnload(), "clean");
}

TEST_F(LoadedLibrary, TellsAParametersFacts) {
    load(R"({"plugins":{"C":{"params":{"p":{"typeCode":101,"elementsCount":3,"gpuSupport":2,
             "default":{"kind":"stringList","value":["a",null]}}}}}})");
    EXPECT_EQ(takeTexts(sdk.Qyra_QyraRenderer_getClassPropertyNames(renderer, "C")), Texts{"p"});
    EXPECT_EQ(sdk.Qyra_PluginUtils_getPropertyType(definition()), 101);
    EXPECT_EQ(sdk.Qyra_PluginUtils_getPropertyElementsCount(definition()), 3U);
    EXPECT_EQ(sdk.Qyra_PluginUtils_getPropertyGpuSupport(renderer, "C", definition()), 2);
    QyraValue value = {};
    sdk.Qyra_PluginUtils_getPropertyDefaultValue(definition(), &value);
    EXPECT_EQ(value.kind, 109);
    ASSERT_EQ(value.count, 2U);
    char** texts = static_cast<char**>(value.elements);
    EXPECT_STREQ(texts[0], "a");
    EXPECT_EQ(texts[1], nullptr);
    sdk.C_memory_free(texts[0]);
    sdk.C_memory_free(texts[1]);
    sdk.C_memory_free(texts);
    EXPECT_EQ(releaseAndUnload(), "clean");
}

TEST_F(LoadedLibrary, NamesItselfInPluginReferences) {
    load(R"({"plugins":{"C":{"params":{"p":
             {"typeCode":10,"default":{"kind":"plugin","value":{"id":5}}}}}}})");
    QyraValue value = {};
    sdk.Qyra_PluginUtils_getPropertyDefaultValue(definition(), &value);
    EXPECT_EQ(value.reference.renderer, renderer);
    EXPECT_EQ(value.reference.pluginId, 5);
}

TEST_F(LoadedLibrary, TellsAParametersGuide) {
    load(R"({"plugins":{"C":{"params":{"p":
             {"typeCode":5,"guide":{"float":0.5,"floats":[1,2,3]}}}}}})");
    std::int32_t result = 99;
    sdk.Qyra_UIGuides_hasType(definition(), guideKind, &result);
    EXPECT_EQ(result, 1);
    float single = 0;
    sdk.Qyra_UIGuides_getFloat(definition(), guideKind, &single);
    EXPECT_EQ(single, 0.5F);
    float* floats = nullptr;
    ASSERT_EQ(sdk.Qyra_UIGuides_getFloats(definition(), guideKind, &floats), 3U);
    EXPECT_EQ(floats[2], 3.0F);
    sdk.C_memory_free(floats);
    EXPECT_EQ(releaseAndUnload(), "clean");
}

TEST_F(LoadedLibrary, KnowsNoGuideOfAnotherKind) {
    load(R"({"plugins":{"C":{"params":{"p":{"typeCode":5,"guide":{"float":1,"floats":[1]}}}}}})");
    std::int32_t result = 99;
    sdk.Qyra_UIGuides_hasType(definition(), guideKind + 1, &result);
    EXPECT_EQ(result, 0);
    float single = 99;
    sdk.Qyra_UIGuides_getFloat(definition(), guideKind + 1, &single);
    EXPECT_EQ(single, 0.0F);
    float* floats = &single;
    EXPECT_EQ(sdk.Qyra_UIGuides_getFloats(definition(), guideKind + 1, &floats), 0U);
    EXPECT_EQ(floats, nullptr);
}

TEST_F(LoadedLibrary, KnowsPluginInstances) {
    load(R"({"plugins":{"C":{"typeId":9}},
             "instances":[{"id":-5,"name":"n","class":"C","propertyNames":{"1":"out"}},
                          {"id":6,"name":null,"exists":false}]})");
    EXPECT_EQ(sdk.Qyra_QyraRenderer_pluginExistsByID(renderer, -5), 1);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_pluginExistsByID(renderer, 6), 0);
    EXPECT_STREQ(sdk.Qyra_QyraRenderer_getPluginName(renderer, -5), "n");
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginName(renderer, 6), nullptr);
    EXPECT_STREQ(sdk.Qyra_QyraRenderer_getPropertyNameFromIndexByID(renderer, -5, 1), "out");
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPropertyNameFromIndexByID(renderer, -5, 2), nullptr);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginTypeIdByID(renderer, -5), 9);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginTypeIdByID(renderer, 6), 0);
    // The id with its upper bits as they were is another number.
    EXPECT_EQ(sdk.Qyra_QyraRenderer_pluginExistsByID(renderer, 0xFFFFFFFFFFFB), 0);
}

constexpr const char* oneParameter = R"({"plugins":{"C":{"params":{"p":
    {"typeCode":9,"default":{"kind":"string","value":"a"}}}}}})";

TEST_F(LoadedLibrary, NotesWhatWasNotReleased) {
    load(oneParameter);
    sdk.Qyra_QyraRenderer_getPluginClassNames(renderer);
    QyraValue value = {};
    sdk.Qyra_PluginUtils_getPropertyDefaultValue(definition(), &value);
    sdk.Qyra_PluginUtils_getPropertyDefaultValue(definition(), &value);
    EXPECT_EQ(unload(),
              "finding 2 not released: block of Qyra_PluginUtils_getPropertyDefaultValue\n"
              "finding 1 not released: renderer\n"
              "finding 1 not released: text vector\n");
}

TEST_F(LoadedLibrary, NotesWhatWasReleasedTwice) {
    void* vector = sdk.Qyra_QyraRenderer_getPluginClassNames(renderer);
    std::int64_t* ids = nullptr;
    sdk.Qyra_QyraRenderer_getPluginClassTypeIDs(renderer, &ids);
    for (int times = 0; times < 2; ++times) {
        sdk.releaseVector(vector);
        sdk.C_memory_free(ids);
        sdk.Qyra_QyraRenderer_release(renderer);
    }
    EXPECT_EQ(unload(),
              "finding 1 released twice: block of Qyra_QyraRenderer_getPluginClassTypeIDs by "
              "C_memory_free\n"
              "finding 1 released twice: renderer by Qyra_QyraRenderer_release\n"
              "finding 1 released twice: text vector by releaseVector\n");
}

TEST_F(LoadedLibrary, NotesTheWrongRelease) {
    load(oneParameter);
    QyraValue value = {};
    sdk.Qyra_PluginUtils_getPropertyDefaultValue(definition(), &value);
    sdk.releaseCharString(value.text);
    sdk.C_memory_free(sdk.Qyra_QyraRenderer_getPluginClassNames(renderer));
    sdk.C_memory_free(const_cast<void*>(definition()));
    sdk.releaseVector(renderer);
    EXPECT_EQ(unload(),
              "finding 1 wrong release: block of Qyra_PluginUtils_getPropertyDefaultValue by "
              "releaseCharString\n"
              "finding 1 wrong release: definition by C_memory_free\n"
              "finding 1 wrong release: renderer by releaseVector\n"
              "finding 1 wrong release: text vector by C_memory_free\n");
}

TEST_F(LoadedLibrary, AcceptsNullForAFreedBlockOnly) {
    sdk.C_memory_free(nullptr);
    sdk.releaseVector(nullptr);
    sdk.releaseCharString(nullptr);
    EXPECT_EQ(releaseAndUnload(),
              "finding 1 null handle released by releaseCharString\n"
              "finding 1 null handle released by releaseVector\n");
}

TEST_F(LoadedLibrary, NotesForeignAddresses) {
    int foreign = 0;
    sdk.C_memory_free(&foreign);
    sdk.Qyra_QyraRenderer_release(&foreign);
    EXPECT_EQ(sdk.getVectorSize(&foreign), 0U);
    EXPECT_EQ(sdk.getVectorElement(nullptr, 0), nullptr);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginClassNames(&foreign), nullptr);
    EXPECT_EQ(releaseAndUnload(),
              "finding 1 null handle in getVectorElement\n"
              "finding 1 unknown handle in Qyra_QyraRenderer_getPluginClassNames\n"
              "finding 1 unknown handle in getVectorSize\n"
              "finding 1 unknown handle released by C_memory_free\n"
              "finding 1 unknown handle released by Qyra_QyraRenderer_release\n");
}

TEST_F(LoadedLibrary, NotesDeadAndWrongHandles) {
    load(oneParameter);
    const void* described = definition();
    void* vector = sdk.Qyra_QyraRenderer_getPluginClassNames(renderer);
    EXPECT_EQ(sdk.getVectorSize(renderer), 0U);
    sdk.releaseVector(vector);
    EXPECT_EQ(sdk.getVectorElement(vector, 0), nullptr);
    sdk.Qyra_QyraRenderer_release(renderer);
    EXPECT_EQ(sdk.Qyra_QyraRenderer_getPluginTypeId(renderer, "C"), 0);
    EXPECT_EQ(sdk.Qyra_PluginUtils_getPropertyType(described), 0);
    EXPECT_EQ(unload(),
              "finding 1 dead handle: definition in Qyra_PluginUtils_getPropertyType\n"
              "finding 1 dead handle: renderer in Qyra_QyraRenderer_getPluginTypeId\n"
              "finding 1 dead handle: text vector in getVectorElement\n"
              "finding 1 wrong handle: renderer in getVectorSize\n");
}

TEST_F(LoadedLibrary, NotesAnIndexBeyondAVector) {
    void* vector = sdk.Qyra_QyraRenderer_getPluginClassNames(renderer);
    EXPECT_EQ(sdk.getVectorElement(vector, 0), nullptr);
    sdk.releaseVector(vector);
    EXPECT_EQ(releaseAndUnload(), "finding 1 index beyond the text vector in getVectorElement\n");
}

TEST_F(LoadedLibrary, SurvivesEveryQueryOfNoDefinition) {
    std::int32_t result = 99;
    float single = 99;
    float* floats = &single;
    QyraValue value = {};
    EXPECT_EQ(sdk.Qyra_PluginUtils_getPropertyGpuSupport(renderer, "C", nullptr), 0);
    EXPECT_EQ(sdk.Qyra_PluginUtils_getPropertyType(nullptr), 0);
    EXPECT_EQ(sdk.Qyra_PluginUtils_getPropertyElementsCount(nullptr), 0xFFFFFFFFU);
    sdk.Qyra_PluginUtils_getPropertyDefaultValue(nullptr, &value);
    sdk.Qyra_UIGuides_hasType(nullptr, guideKind, &result);
    sdk.Qyra_UIGuides_getFloat(nullptr, guideKind, &single);
    EXPECT_EQ(sdk.Qyra_UIGuides_getFloats(nullptr, guideKind, &floats), 0U);
    EXPECT_EQ(value.kind, -1);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(single, 0.0F);
    EXPECT_EQ(floats, nullptr);
    const std::string findings = releaseAndUnload();
    EXPECT_EQ(std::count(findings.begin(), findings.end(), '\n'), 7);
}

TEST_F(LoadedLibrary, IsUnfinishedWhileLoaded) {
    EXPECT_EQ(readText(ledgerPath()), "unfinished\n");
}

TEST_F(LoadedLibrary, CountsWhatTheLedgerPromises) {
    sdk.Qyra_incrementModuleReferenceCounter();
    sdk.Qyra_enableFrameBuffer(false);
    takeTexts(sdk.Qyra_QyraRenderer_getPluginClassNames(renderer));
    EXPECT_EQ(releaseAndUnload(), "clean");
    const std::string ledger = readText(ledgerPath());
    EXPECT_EQ(ledger.substr(0, ledger.find("calls 0")),
              "clean\n"
              "start-up reference counted, frame buffer off\n"
              "created 1 renderers, released 1\n"
              "created 1 text vectors, released 1\n"
              "created 0 blocks, released 0\n"
              "calls 1 Qyra_incrementModuleReferenceCounter\n"
              "calls 1 Qyra_enableFrameBuffer\n"
              "calls 1 Qyra_QyraRenderer_create\n");
}

}  // namespace
}  // namespace metagen

#include "sdk/fake_sdk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "sdk/entry_point_table.h"

namespace metagen::testing {

namespace {

FakeSdk* current = nullptr;

using TextVector = std::vector<const char*>;

const FakeParameter& parameterOf(const void* definition) {
    return *static_cast<const FakeParameter*>(definition);
}

const FakeClass* classOf(const char* typeText) {
    const auto found = std::ranges::find(current->classes, typeText, &FakeClass::typeText);
    return found == current->classes.end() ? nullptr : &*found;
}

const FakeParameter* definitionOf(const char* typeText, std::string_view name) {
    return &*std::ranges::find(classOf(typeText)->parameters, name, &FakeParameter::name);
}

const FakePlugin* pluginOf(std::int64_t id) {
    const auto found = current->plugins.find(id);
    return found == current->plugins.end() ? nullptr : &found->second;
}

template <typename Named>
void* namesOf(const std::vector<Named>& items) {
    TextVector names;
    for (const Named& item : items) names.push_back(item.name.c_str());
    return current->makeTextVector(std::move(names));
}

}  // namespace

/// The entry points, answering from the test data in place.
struct FakeEntryPoints {
    static void* create(const void* options, std::int32_t* errorCode) {
        EXPECT_EQ(options, nullptr);
        EXPECT_EQ(*errorCode, 0);
        current->calls.emplace_back("create");
        *errorCode = current->refusesRenderers ? 77 : 0;
        if (current->refusesRenderers) return nullptr;
        ++current->renderers;
        return current->renderer();
    }
    static void setUserData(void* renderer, std::int32_t slot, void* userData) {
        EXPECT_EQ(renderer, current->renderer());
        EXPECT_EQ(slot, 0);
        current->userData = userData;
        current->calls.emplace_back("setUserData");
    }
    static std::uint32_t typeIds(void* /*renderer*/, std::int64_t** ids) {
        *ids = current->allocateArray<std::int64_t>({1, 2, 3});
        current->calls.emplace_back("typeIds");
        return 3;
    }
    static void release(void* renderer) {
        EXPECT_EQ(renderer, current->renderer());
        --current->renderers;
        current->calls.emplace_back("release");
    }
    static void free(void* memory) {
        if (memory == nullptr) return;
        EXPECT_EQ(current->blocks.erase(memory), 1U) << "not the SDK's, or freed twice";
        std::free(memory);
        current->calls.emplace_back("free");
    }
    static void* classNames(void* /*renderer*/) {
        return current->hasNullClassNames ? nullptr : namesOf(current->classes);
    }
    static std::uint32_t vectorSize(const void* vector) {
        return static_cast<std::uint32_t>(static_cast<const TextVector*>(vector)->size());
    }
    static const char* vectorElement(const void* vector, std::uint32_t index) {
        return static_cast<const TextVector*>(vector)->at(index);
    }
    static void releaseVector(void* vector) {
        EXPECT_EQ(current->vectors.erase(vector), 1U) << "unknown vector, or released twice";
        delete static_cast<TextVector*>(vector);
    }
    static std::int64_t typeId(void* /*renderer*/, const char* className) {
        const auto found = std::ranges::find(current->classes, className, &FakeClass::name);
        return found == current->classes.end() ? -1 : found - current->classes.begin();
    }
    static const char* typeFromId(void* /*renderer*/, std::int64_t id) {
        if (id < 0) return nullptr;
        return current->classes.at(static_cast<std::size_t>(id)).typeText.c_str();
    }
    static std::uint64_t categories(void* /*renderer*/, const char* typeText) {
        const FakeClass* found = classOf(typeText);
        return found == nullptr ? 0 : found->categoryBits;
    }
    static void* propertyNames(void* /*renderer*/, const char* typeText) {
        const FakeClass* found = classOf(typeText);
        return found == nullptr || found->hasNullNames ? nullptr : namesOf(found->parameters);
    }
    static const void* definition(void* /*renderer*/, const char* typeText, const char* name) {
        current->calls.emplace_back(std::string("definition ") + name);
        return definitionOf(typeText, name);
    }
    static std::int32_t gpuSupport(void* renderer, const char* typeText, const void* definition) {
        EXPECT_EQ(renderer, current->renderer());
        EXPECT_EQ(definitionOf(typeText, parameterOf(definition).name), definition);
        current->calls.emplace_back("gpuSupport " + parameterOf(definition).name);
        return 1;
    }
    static std::int32_t type(const void* definition) { return parameterOf(definition).code; }
    static std::uint32_t elements(const void* definition) {
        return parameterOf(definition).elements;
    }
    static void defaultValue(const void* definition, QyraValue* value) {
        current->calls.emplace_back("default " + parameterOf(definition).name);
        value->kind = qyra_kind::unspecified;
        const auto& fill = parameterOf(definition).defaultValue;
        if (fill) fill(*current, *value);
    }
    static void hasGuide(const void* definition, std::int32_t kind, std::int32_t* result) {
        EXPECT_EQ(kind, 22);
        *result = parameterOf(definition).guide ? 1 : 0;
    }
    static void guideFloat(const void* definition, std::int32_t kind, float* value) {
        EXPECT_EQ(kind, 22);
        *value = parameterOf(definition).guide->single;
    }
    static std::uint32_t guideFloats(const void* definition, std::int32_t kind, float** values) {
        EXPECT_EQ(kind, 22);
        const std::vector<float>& sequence = parameterOf(definition).guide->sequence;
        *values = current->allocateArray(sequence);
        return static_cast<std::uint32_t>(sequence.size());
    }
    static std::int32_t exists(void* renderer, std::int64_t id) {
        EXPECT_EQ(renderer, current->renderer());
        const FakePlugin* plugin = pluginOf(id);
        return plugin != nullptr && plugin->exists ? 1 : 0;
    }
    static const char* pluginName(void* renderer, std::int64_t id) {
        EXPECT_EQ(renderer, current->renderer());
        const FakePlugin* plugin = pluginOf(id);
        return plugin != nullptr && plugin->name ? plugin->name->c_str() : nullptr;
    }
    static const char* propertyName(void* renderer, std::int64_t id, std::int32_t index) {
        EXPECT_EQ(renderer, current->renderer());
        const auto& properties = pluginOf(id)->properties;
        const auto found = properties.find(index);
        return found == properties.end() ? nullptr : found->second.c_str();
    }
};

FakeSdk::FakeSdk() {
    current = this;
    using Fake = FakeEntryPoints;
    EntryPointTable& sdk = entryPoints();
    sdk.Qyra_QyraRenderer_create = Fake::create;
    sdk.Qyra_QyraRenderer_setUserData = Fake::setUserData;
    sdk.Qyra_QyraRenderer_getPluginClassTypeIDs = Fake::typeIds;
    sdk.Qyra_QyraRenderer_release = Fake::release;
    sdk.C_memory_free = Fake::free;
    sdk.Qyra_QyraRenderer_getPluginClassNames = Fake::classNames;
    sdk.getVectorSize = Fake::vectorSize;
    sdk.getVectorElement = Fake::vectorElement;
    sdk.releaseVector = Fake::releaseVector;
    sdk.Qyra_QyraRenderer_getPluginTypeId = Fake::typeId;
    sdk.Qyra_QyraRenderer_getPluginTypeFromTypeID = Fake::typeFromId;
    sdk.Qyra_QyraRenderer_getPluginClassCategories = Fake::categories;
    sdk.Qyra_QyraRenderer_getClassPropertyNames = Fake::propertyNames;
    sdk.Qyra_QyraRenderer_getPropertyDefinitionFromClass = Fake::definition;
    sdk.Qyra_PluginUtils_getPropertyGpuSupport = Fake::gpuSupport;
    sdk.Qyra_PluginUtils_getPropertyType = Fake::type;
    sdk.Qyra_PluginUtils_getPropertyElementsCount = Fake::elements;
    sdk.Qyra_PluginUtils_getPropertyDefaultValue = Fake::defaultValue;
    sdk.Qyra_UIGuides_hasType = Fake::hasGuide;
    sdk.Qyra_UIGuides_getFloat = Fake::guideFloat;
    sdk.Qyra_UIGuides_getFloats = Fake::guideFloats;
    sdk.Qyra_QyraRenderer_pluginExistsByID = Fake::exists;
    sdk.Qyra_QyraRenderer_getPluginName = Fake::pluginName;
    sdk.Qyra_QyraRenderer_getPropertyNameFromIndexByID = Fake::propertyName;
}

FakeSdk::~FakeSdk() {
    EXPECT_TRUE(blocks.empty()) << blocks.size() << " blocks not freed";
    EXPECT_TRUE(vectors.empty()) << vectors.size() << " text vectors not released";
    EXPECT_EQ(renderers, 0) << "renderers not released";
    entryPoints() = {};
    current = nullptr;
}

void* FakeSdk::allocate(std::size_t size) {
    void* block = std::malloc(size + 1);  // never null for a size of 0
    blocks.insert(block);
    return block;
}

char* FakeSdk::allocateText(const std::string& text) {
    auto* copy = static_cast<char*>(allocate(text.size() + 1));
    std::memcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

void* FakeSdk::makeTextVector(std::vector<const char*> texts) {
    auto* vector = new TextVector(std::move(texts));
    vectors.insert(vector);
    return vector;
}

}  // namespace metagen::testing

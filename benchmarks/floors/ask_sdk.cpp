// Asks the SDK what `dump` asks, call for call, and does nothing with the answers: what it takes
// beyond an SDK that is brought up and asked nothing is the library's own time.
//
//   ask_sdk nothing|everything
#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "sdk/entry_point_table.h"
#include "sdk/parameter_type.h"
#include "sdk/renderer.h"
#include "sdk/sdk_memory.h"
#include "sdk/sdk_session.h"

namespace {

using metagen::entryPoints;

constexpr std::int32_t defaultValueGuide = 22;
constexpr std::array<std::int32_t, 7> unrecordedCodes = {1000, 1001, 1002, 1003, 1004, 1005, 10000};

/// Calls visit(text) for every element of the vector, and releases it.
template <typename Visit>
void forEachText(void* vector, const Visit& visit) {
    const std::uint32_t count = entryPoints().getVectorSize(vector);
    for (std::uint32_t index = 0; index < count; ++index)
        visit(entryPoints().getVectorElement(vector, index));
    entryPoints().releaseVector(vector);
}

void askInstance(const QyraPluginReference& reference, bool isListed) {
    if (!isListed && !metagen::pluginExists(reference)) return;
    static_cast<void>(metagen::pluginName(reference));
    if (isListed || reference.propertyIndex < 1) return;
    static_cast<void>(metagen::propertyName(reference));
}

/// The names of the plugins that the value refers to, as its text has them.
void askInstances(const QyraValue& value) {
    using namespace metagen::type_code;  // NOLINT(google-build-using-namespace): their names alone
    if (value.kind == plugin) askInstance(value.reference, false);
    if (value.kind == metagen::listCodeOf(plugin)) {
        for (const auto& element : metagen::elementsOf<const QyraPluginReference>(value))
            askInstance(element, true);
    }
    if (value.kind == list) {
        for (const auto& element : metagen::elementsOf<const QyraValue>(value))
            askInstances(element);
    }
}

void askDefault(const void* definition) {
    const auto& sdk = entryPoints();
    std::int32_t hasGuide = 0;
    sdk.Qyra_UIGuides_hasType(definition, defaultValueGuide, &hasGuide);
    if (hasGuide != 0) {
        float single = 0;
        sdk.Qyra_UIGuides_getFloat(definition, defaultValueGuide, &single);
        float* numbers = nullptr;
        sdk.Qyra_UIGuides_getFloats(definition, defaultValueGuide, &numbers);
        if (numbers != nullptr) sdk.C_memory_free(numbers);
        return;
    }
    metagen::SdkValue value;
    sdk.Qyra_PluginUtils_getPropertyDefaultValue(definition, &value.raw);
    askInstances(value.raw);
}

void askParameter(void* renderer, const char* type, const char* name) {
    const auto& sdk = entryPoints();
    const void* definition =
        sdk.Qyra_QyraRenderer_getPropertyDefinitionFromClass(renderer, type, name);
    sdk.Qyra_PluginUtils_getPropertyGpuSupport(renderer, type, definition);
    const std::int32_t code = sdk.Qyra_PluginUtils_getPropertyType(definition);
    if (std::ranges::find(unrecordedCodes, code) != unrecordedCodes.end()) return;
    sdk.Qyra_PluginUtils_getPropertyElementsCount(definition);
    askDefault(definition);
}

void askClass(void* renderer, const char* name) {
    const auto& sdk = entryPoints();
    const std::int64_t id = sdk.Qyra_QyraRenderer_getPluginTypeId(renderer, name);
    const char* type = sdk.Qyra_QyraRenderer_getPluginTypeFromTypeID(renderer, id);
    forEachText(sdk.Qyra_QyraRenderer_getClassPropertyNames(renderer, type),
                [=](const char* parameter) { askParameter(renderer, type, parameter); });
    sdk.Qyra_QyraRenderer_getPluginClassCategories(renderer, type);
}

void askEverything() {
    const auto& sdk = entryPoints();
    std::int32_t errorCode = 0;
    void* renderer = sdk.Qyra_QyraRenderer_create(nullptr, &errorCode);
    sdk.Qyra_QyraRenderer_setUserData(renderer, 0, &errorCode);
    std::int64_t* typeIds = nullptr;
    sdk.Qyra_QyraRenderer_getPluginClassTypeIDs(renderer, &typeIds);
    forEachText(sdk.Qyra_QyraRenderer_getPluginClassNames(renderer),
                [=](const char* name) { askClass(renderer, name); });
    sdk.Qyra_QyraRenderer_release(renderer);
    sdk.C_memory_free(typeIds);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::string_view extent = argumentCount == 2 ? arguments[1] : "";
    if (extent != "nothing" && extent != "everything") return 2;
    metagen::SdkSession sdk;
    sdk.start();
    if (extent == "everything") askEverything();
    return 0;
}

#include "sdk/renderer.h"

#include "sdk/entry_point_table.h"
#include "sdk/exceptions.h"
#include "support/process_end.h"

namespace metagen {

Renderer::Renderer() : handle(entryPoints().Qyra_QyraRenderer_create(nullptr, &errorCode)) {
    if (handle == nullptr) {
        const auto code = static_cast<std::uint32_t>(errorCode);
        throw Qyra::InstantiationErr("Instantiation error.", code, 0);
    }
    const EntryPointTable& sdk = entryPoints();
    sdk.Qyra_QyraRenderer_setUserData(handle, 0, this);
    std::int64_t* ids = nullptr;
    typeIdCount = sdk.Qyra_QyraRenderer_getPluginClassTypeIDs(handle, &ids);
    typeIds.reset(ids);
}

Renderer::~Renderer() { entryPoints().Qyra_QyraRenderer_release(handle); }

std::vector<std::string> Renderer::pluginClassNames() const {
    return takeTexts(entryPoints().Qyra_QyraRenderer_getPluginClassNames(handle));
}

std::string Renderer::typeText(const std::string& className) const {
    const EntryPointTable& sdk = entryPoints();
    const std::int64_t id = sdk.Qyra_QyraRenderer_getPluginTypeId(handle, className.c_str());
    const char* type = sdk.Qyra_QyraRenderer_getPluginTypeFromTypeID(handle, id);
    return type != nullptr ? type : "";
}

std::uint64_t Renderer::categoryBits(const std::string& typeText) const {
    return entryPoints().Qyra_QyraRenderer_getPluginClassCategories(handle, typeText.c_str());
}

std::vector<std::string> Renderer::parameterNames(const std::string& typeText) const {
    return takeTexts(
        entryPoints().Qyra_QyraRenderer_getClassPropertyNames(handle, typeText.c_str()));
}

const void* Renderer::parameterDefinition(const std::string& typeText,
                                          const std::string& name) const {
    return entryPoints().Qyra_QyraRenderer_getPropertyDefinitionFromClass(handle, typeText.c_str(),
                                                                          name.c_str());
}

std::int32_t Renderer::gpuSupport(const std::string& typeText, const void* definition) const {
    return entryPoints().Qyra_PluginUtils_getPropertyGpuSupport(handle, typeText.c_str(),
                                                                definition);
}

std::unique_ptr<Renderer> createRendererOrExit() try {
    return std::make_unique<Renderer>();
} catch (const Qyra::QyraException& exception) {
    print(exception.message() + '\n');
    exitWithStatus(failureStatus);
}

std::int64_t pluginIdOf(std::int64_t rawId) {
    constexpr std::uint64_t lowBits = (std::uint64_t{1} << 48U) - 1;
    constexpr std::uint64_t signBit = std::uint64_t{1} << 47U;
    const std::uint64_t low = static_cast<std::uint64_t>(rawId) & lowBits;
    return static_cast<std::int64_t>((low ^ signBit) - signBit);
}

}  // namespace metagen

#include "sdk/renderer.h"

#include "sdk/entry_point_table.h"

namespace metagen {

namespace {

constexpr std::int32_t defaultValueGuide = 22;

/// The plugin id as the queries by id want it: the low 48 bits, read as a signed number.
std::int64_t idOf(const QyraPluginReference& reference) {
    constexpr std::uint64_t lowBits = (std::uint64_t{1} << 48U) - 1;
    constexpr std::uint64_t signBit = std::uint64_t{1} << 47U;
    const std::uint64_t low = static_cast<std::uint64_t>(reference.pluginId) & lowBits;
    return static_cast<std::int64_t>((low ^ signBit) - signBit);
}

}  // namespace

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

Definition Renderer::definition(const std::string& typeText, const std::string& name) const {
    return Definition(entryPoints().Qyra_QyraRenderer_getPropertyDefinitionFromClass(
        handle, typeText.c_str(), name.c_str()));
}

std::int32_t Renderer::gpuSupport(const std::string& typeText, Definition definition) const {
    return entryPoints().Qyra_PluginUtils_getPropertyGpuSupport(handle, typeText.c_str(),
                                                                definition.get());
}

std::int32_t Definition::typeCode() const {
    return entryPoints().Qyra_PluginUtils_getPropertyType(handle);
}

bool Definition::isList() const {
    constexpr std::uint32_t noList = 0xFFFFFFFFU;  // the element count of what is no list
    return entryPoints().Qyra_PluginUtils_getPropertyElementsCount(handle) != noList;
}

bool Definition::hasDefaultGuide() const {
    std::int32_t hasGuide = 0;
    entryPoints().Qyra_UIGuides_hasType(handle, defaultValueGuide, &hasGuide);
    return hasGuide != 0;
}

Definition::Guide Definition::defaultGuide() const {
    const EntryPointTable& sdk = entryPoints();
    Guide guide;
    sdk.Qyra_UIGuides_getFloat(handle, defaultValueGuide, &guide.number);
    float* numbers = nullptr;
    guide.count = sdk.Qyra_UIGuides_getFloats(handle, defaultValueGuide, &numbers);
    guide.sequence.reset(numbers);
    if (numbers == nullptr) guide.count = 0;
    return guide;
}

void Definition::readDefault(SdkValue& value) const {
    entryPoints().Qyra_PluginUtils_getPropertyDefaultValue(handle, &value.raw);
}

bool pluginExists(const QyraPluginReference& reference) {
    const std::int64_t id = idOf(reference);
    if (reference.renderer == nullptr || id == 0 || id == -1) return false;
    return entryPoints().Qyra_QyraRenderer_pluginExistsByID(reference.renderer, id) != 0;
}

const char* pluginName(const QyraPluginReference& reference) {
    if (reference.renderer == nullptr) return nullptr;
    return entryPoints().Qyra_QyraRenderer_getPluginName(reference.renderer, idOf(reference));
}

const char* propertyName(const QyraPluginReference& reference) {
    return entryPoints().Qyra_QyraRenderer_getPropertyNameFromIndexByID(
        reference.renderer, idOf(reference), reference.propertyIndex);
}

}  // namespace metagen

// Start-up, renderers, and what a renderer knows of its classes and plugin instances.
#include <algorithm>
#include <string_view>

#include "replay_sdk/entry_points.h"
#include "replay_sdk/library_state.h"

using metagen::replay::AnswerSource;
using metagen::replay::EntryPoint;
using metagen::replay::PluginInstance;
using metagen::replay::state;
using metagen::replay::Subject;

namespace {

std::string_view textOf(const char* text) { return text == nullptr ? "" : text; }

/// Counts the call, and gives the source of answers for a live renderer.
const AnswerSource* enter(EntryPoint entryPoint, const void* renderer) {
    state().ledger.countCall(entryPoint);
    return state().answers(renderer, entryPoint);
}

}  // namespace

void Qyra_incrementModuleReferenceCounter() {
    state().ledger.countCall(EntryPoint::Qyra_incrementModuleReferenceCounter);
}

void Qyra_enableFrameBuffer(bool enable) {
    state().ledger.countCall(EntryPoint::Qyra_enableFrameBuffer);
    state().ledger.noteFrameBuffer(enable);
}

void* Qyra_QyraRenderer_create(const void*, std::int32_t* errorCode) {
    state().ledger.countCall(EntryPoint::Qyra_QyraRenderer_create);
    std::int32_t error = 0;
    void* renderer = state().createRenderer(error);
    if (errorCode != nullptr) *errorCode = error;
    return renderer;
}

void Qyra_QyraRenderer_setUserData(void* renderer, std::int32_t, void* userData) {
    constexpr EntryPoint self = EntryPoint::Qyra_QyraRenderer_setUserData;
    state().ledger.countCall(self);
    if (auto* found = state().findRenderer(renderer, self)) found->userData = userData;
}

std::uint32_t Qyra_QyraRenderer_getPluginClassTypeIDs(void* renderer, std::int64_t** typeIds) {
    constexpr EntryPoint self = EntryPoint::Qyra_QyraRenderer_getPluginClassTypeIDs;
    const AnswerSource* answers = enter(self, renderer);
    if (typeIds == nullptr) return 0;
    *typeIds = nullptr;
    if (answers == nullptr) return 0;
    const std::vector<std::int64_t> ids = answers->typeIds();
    void* block = state().blocks.allocate(ids.size() * sizeof(std::int64_t), self);
    *typeIds = static_cast<std::int64_t*>(block);
    std::copy(ids.begin(), ids.end(), *typeIds);
    return static_cast<std::uint32_t>(ids.size());
}

void Qyra_QyraRenderer_release(void* renderer) {
    constexpr EntryPoint self = EntryPoint::Qyra_QyraRenderer_release;
    state().ledger.countCall(self);
    state().release(Subject::renderer, renderer, self);
}

void* Qyra_QyraRenderer_getPluginClassNames(void* renderer) {
    const AnswerSource* answers =
        enter(EntryPoint::Qyra_QyraRenderer_getPluginClassNames, renderer);
    return answers == nullptr ? nullptr : state().handOut(answers->classNames());
}

std::int64_t Qyra_QyraRenderer_getPluginTypeId(void* renderer, const char* className) {
    const AnswerSource* answers = enter(EntryPoint::Qyra_QyraRenderer_getPluginTypeId, renderer);
    return answers == nullptr ? 0 : answers->typeIdOfClass(textOf(className));
}

const char* Qyra_QyraRenderer_getPluginTypeFromTypeID(void* renderer, std::int64_t typeId) {
    const AnswerSource* answers =
        enter(EntryPoint::Qyra_QyraRenderer_getPluginTypeFromTypeID, renderer);
    return answers == nullptr ? nullptr : answers->typeText(typeId);
}

std::uint64_t Qyra_QyraRenderer_getPluginClassCategories(void* renderer, const char* typeText) {
    const AnswerSource* answers =
        enter(EntryPoint::Qyra_QyraRenderer_getPluginClassCategories, renderer);
    return answers == nullptr ? 0 : answers->categories(textOf(typeText));
}

void* Qyra_QyraRenderer_getClassPropertyNames(void* renderer, const char* typeText) {
    const AnswerSource* answers =
        enter(EntryPoint::Qyra_QyraRenderer_getClassPropertyNames, renderer);
    return answers == nullptr ? nullptr
                              : state().handOut(answers->parameterNames(textOf(typeText)));
}

const void* Qyra_QyraRenderer_getPropertyDefinitionFromClass(void* renderer, const char* typeText,
                                                             const char* propertyName) {
    using metagen::replay::HandleKind;
    const AnswerSource* answers =
        enter(EntryPoint::Qyra_QyraRenderer_getPropertyDefinitionFromClass, renderer);
    if (answers == nullptr) return nullptr;
    const auto parameter = answers->parameter(textOf(typeText), textOf(propertyName));
    return parameter ? metagen::replay::makeHandle(HandleKind::definition, *parameter) : nullptr;
}

std::int32_t Qyra_QyraRenderer_pluginExistsByID(void* renderer, std::int64_t pluginId) {
    const AnswerSource* answers = enter(EntryPoint::Qyra_QyraRenderer_pluginExistsByID, renderer);
    const PluginInstance* instance = answers == nullptr ? nullptr : answers->instance(pluginId);
    return instance != nullptr && instance->exists ? 1 : 0;
}

const char* Qyra_QyraRenderer_getPluginName(void* renderer, std::int64_t pluginId) {
    const AnswerSource* answers = enter(EntryPoint::Qyra_QyraRenderer_getPluginName, renderer);
    const PluginInstance* instance = answers == nullptr ? nullptr : answers->instance(pluginId);
    return instance != nullptr && instance->name ? instance->name->c_str() : nullptr;
}

const char* Qyra_QyraRenderer_getPropertyNameFromIndexByID(void* renderer, std::int64_t pluginId,
                                                           std::int32_t propertyIndex) {
    const AnswerSource* answers =
        enter(EntryPoint::Qyra_QyraRenderer_getPropertyNameFromIndexByID, renderer);
    const PluginInstance* instance = answers == nullptr ? nullptr : answers->instance(pluginId);
    if (instance == nullptr) return nullptr;
    const auto name = instance->propertyNames.find(propertyIndex);
    return name == instance->propertyNames.end() ? nullptr : name->second.c_str();
}

std::int64_t Qyra_QyraRenderer_getPluginTypeIdByID(void* renderer, std::int64_t pluginId) {
    const AnswerSource* answers =
        enter(EntryPoint::Qyra_QyraRenderer_getPluginTypeIdByID, renderer);
    const PluginInstance* instance = answers == nullptr ? nullptr : answers->instance(pluginId);
    return instance == nullptr ? 0 : instance->typeId;
}

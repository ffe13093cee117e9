// What the library knows of a parameter, by its definition.
#include <algorithm>

#include "replay_sdk/entry_points.h"
#include "replay_sdk/library_state.h"
#include "replay_sdk/value_writer.h"

using metagen::replay::EntryPoint;
using metagen::replay::Guide;
using metagen::replay::ParameterFacts;
using metagen::replay::state;

namespace {

/// The only kind of guide that a parameter can carry here.
constexpr std::int32_t servedGuideKind = 22;

/// Counts the call, and gives the number of the parameter that the definition describes.
std::optional<std::size_t> enter(EntryPoint entryPoint, const void* definition) {
    state().ledger.countCall(entryPoint);
    return state().findParameter(definition, entryPoint);
}

/// The facts of no parameter when there is none.
ParameterFacts factsOf(std::optional<std::size_t> parameter) {
    return parameter ? state().parameterAnswers().facts(*parameter) : ParameterFacts{};
}

const Guide* guideOf(std::optional<std::size_t> parameter, std::int32_t guideKind) {
    if (!parameter || guideKind != servedGuideKind) return nullptr;
    return state().parameterAnswers().guide(*parameter);
}

}  // namespace

std::int32_t Qyra_PluginUtils_getPropertyGpuSupport(void* renderer, const char*,
                                                    const void* definition) {
    constexpr EntryPoint self = EntryPoint::Qyra_PluginUtils_getPropertyGpuSupport;
    const ParameterFacts facts = factsOf(enter(self, definition));
    return state().answers(renderer, self) == nullptr ? 0 : facts.gpuSupport;
}

std::int32_t Qyra_PluginUtils_getPropertyType(const void* definition) {
    return factsOf(enter(EntryPoint::Qyra_PluginUtils_getPropertyType, definition)).typeCode;
}

std::uint32_t Qyra_PluginUtils_getPropertyElementsCount(const void* definition) {
    return factsOf(enter(EntryPoint::Qyra_PluginUtils_getPropertyElementsCount, definition))
        .elementsCount;
}

void Qyra_PluginUtils_getPropertyDefaultValue(const void* definition, QyraValue* value) {
    const auto parameter = enter(EntryPoint::Qyra_PluginUtils_getPropertyDefaultValue, definition);
    if (value == nullptr) return;
    metagen::replay::ValueWriter writer(state().blocks, state().newestRenderer());
    if (parameter) {
        writer.write(state().parameterAnswers().defaultValue(*parameter), *value);
    } else {
        writer.write({}, *value);
    }
}

void Qyra_UIGuides_hasType(const void* definition, std::int32_t guideKind, std::int32_t* result) {
    const auto parameter = enter(EntryPoint::Qyra_UIGuides_hasType, definition);
    if (result != nullptr) *result = guideOf(parameter, guideKind) != nullptr ? 1 : 0;
}

void Qyra_UIGuides_getFloat(const void* definition, std::int32_t guideKind, float* value) {
    const auto parameter = enter(EntryPoint::Qyra_UIGuides_getFloat, definition);
    const Guide* guide = guideOf(parameter, guideKind);
    if (value != nullptr) *value = guide == nullptr ? 0 : guide->single;
}

std::uint32_t Qyra_UIGuides_getFloats(const void* definition, std::int32_t guideKind,
                                      float** values) {
    constexpr EntryPoint self = EntryPoint::Qyra_UIGuides_getFloats;
    const Guide* guide = guideOf(enter(self, definition), guideKind);
    if (values == nullptr) return 0;
    *values = nullptr;
    if (guide == nullptr || !guide->floats) return 0;
    const std::vector<float>& floats = *guide->floats;
    *values = static_cast<float*>(state().blocks.allocate(floats.size() * sizeof(float), self));
    std::copy(floats.begin(), floats.end(), *values);
    return static_cast<std::uint32_t>(floats.size());
}

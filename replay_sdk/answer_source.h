// Where the replay SDK's answers come from. The interface layer asks through this and knows
// nothing of catalogues; a library with computed answers links another source.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "replay_sdk/default_value.h"
#include "replay_sdk/text_vector.h"

namespace metagen::replay {

/// The element count of a parameter that is no list.
inline constexpr std::uint32_t noList = 0xFFFFFFFFU;

struct ParameterFacts {
    std::int32_t typeCode = 0;
    std::uint32_t elementsCount = noList;
    std::int32_t gpuSupport = 0;
};

/// A user-interface guide of kind 22.
struct Guide {
    float single = 0;
    std::optional<std::vector<float>> floats;  ///< nothing: a null array of no elements
};

struct PluginInstance {
    Text name;
    bool exists = true;
    std::int64_t typeId = 0;  ///< 0: of no known class
    std::map<std::int32_t, std::string> propertyNames;
};

/// Answers about plugin classes. Names that it doesn't know give neutral answers: null, nothing, 0.
/// Texts and references that it gives live as long as the source.
class AnswerSource {
public:
    virtual ~AnswerSource() = default;

    /// The code with which the creation of a renderer fails; nothing when it succeeds.
    virtual std::optional<std::int32_t> creationError() const = 0;

    virtual std::vector<std::int64_t> typeIds() const = 0;
    virtual std::optional<TextVector> classNames() const = 0;
    virtual std::int64_t typeIdOfClass(std::string_view className) const = 0;
    virtual const char* typeText(std::int64_t typeId) const = 0;
    virtual std::uint64_t categories(std::string_view typeText) const = 0;
    virtual std::optional<TextVector> parameterNames(std::string_view typeText) const = 0;

    /// The number, below parameterCount(), by which the queries below name a parameter.
    virtual std::optional<std::size_t> parameter(std::string_view typeText,
                                                 std::string_view name) const = 0;
    virtual std::size_t parameterCount() const = 0;
    virtual ParameterFacts facts(std::size_t parameter) const = 0;

    /// Valid until the next call.
    virtual const DefaultValue& defaultValue(std::size_t parameter) const = 0;

    /// Null when the parameter carries no such guide. Valid until the next call.
    virtual const Guide* guide(std::size_t parameter) const = 0;

    /// Null for an id that names no instance. Valid until the next call.
    virtual const PluginInstance* instance(std::int64_t pluginId) const = 0;
};

/// Opens the source that this library was linked with, at the first creation of a renderer. A
/// source that can't be opened has reported why and refuses every renderer.
std::unique_ptr<AnswerSource> openAnswerSource();

}  // namespace metagen::replay

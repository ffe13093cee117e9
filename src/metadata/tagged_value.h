// A parameter's default value as the live metadata holds it: a tag and a payload of its kind.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "sdk/qyra_sdk.h"

namespace metagen {

/// A reference to a plugin instance of a live renderer.
struct PluginReference {
    void* renderer = nullptr;  ///< the SDK's renderer handle, not owned; null: no reference
    std::int64_t pluginId = 0;
    std::int32_t propertyIndex = 0;
};

/// The floats of a vector, colour (3), acolor (4), matrix (9, by rows) or transform (12, matrix
/// then offset); those beyond the kind's own count are zero.
using Components = std::array<float, 12>;

struct TaggedValue {
    using Payload =
        std::variant<std::monostate, std::int32_t, float, double, bool, Components, std::string,
                     PluginReference, std::vector<TaggedValue>, std::vector<std::int32_t>,
                     std::vector<float>, std::vector<Components>, std::vector<std::string>,
                     std::vector<PluginReference>>;

    std::int32_t tag = qyra_kind::unspecified;  ///< the SDK's value kind
    Payload payload;  ///< of the tag's kind; empty for a tag without a payload
};

/// The number of elements when the value is a list of any kind, otherwise zero.
std::size_t listSize(const TaggedValue& value);

}  // namespace metagen

// What a parameter of an invented class is: its type and its default value, drawn from the mix of
// types and default texts that the bundled catalogue has.
#pragma once

#include <cstdint>
#include <optional>

#include "benchmarks/invented_sdk/dice.h"
#include "replay_sdk/answer_source.h"

namespace metagen::invented {

struct InventedParameter {
    std::int32_t typeCode = 0;
    replay::DefaultValue defaultValue;
    std::optional<replay::Guide> guide;  ///< when there, the default comes from it
};

InventedParameter inventParameter(Dice dice);

/// The instances that references name have the ids from 1 to this number.
inline constexpr std::int64_t instanceCount = 40;

replay::PluginInstance inventInstance(std::int64_t pluginId);

}  // namespace metagen::invented

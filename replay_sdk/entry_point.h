// The entry points as values, for the ledger: which one was called, which one made a block.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "sdk/qyra_sdk.h"

namespace metagen::replay {

#define REPLAY_ENUMERATOR(result, name, parameters) name,
#define REPLAY_NAME(result, name, parameters) #name,

/// Named like the functions, in the interface's order.
enum class EntryPoint : std::uint8_t { QYRA_SDK_ENTRY_POINTS(REPLAY_ENUMERATOR) };

inline constexpr std::array entryPointNames = {QYRA_SDK_ENTRY_POINTS(REPLAY_NAME)};

#undef REPLAY_ENUMERATOR
#undef REPLAY_NAME

inline constexpr std::size_t entryPointCount = entryPointNames.size();

constexpr const char* nameOf(EntryPoint entryPoint) {
    return entryPointNames[static_cast<std::size_t>(entryPoint)];
}

}  // namespace metagen::replay

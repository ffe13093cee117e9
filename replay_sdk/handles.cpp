#include "replay_sdk/handles.h"

namespace metagen::replay {

namespace {

static_assert(sizeof(void*) == 8, "a handle keeps its kind above the bits of any address");
constexpr unsigned kindShift = 56U;
constexpr std::uintptr_t kindBase = 0x50;  // no system hands out addresses that begin so

constexpr std::uintptr_t indexMask = (std::uintptr_t{1} << kindShift) - 1;

}  // namespace

void* makeHandle(HandleKind kind, std::size_t index) {
    const std::uintptr_t prefix = kindBase + static_cast<std::uintptr_t>(kind);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a number on purpose, never dereferenced.
    return reinterpret_cast<void*>((prefix << kindShift) | (index & indexMask));
}

std::optional<HandleParts> readHandle(const void* handle) {
    const auto number = reinterpret_cast<std::uintptr_t>(handle);
    const std::uintptr_t prefix = number >> kindShift;
    if (prefix <= kindBase || prefix > kindBase + 3) return std::nullopt;
    return HandleParts{static_cast<HandleKind>(prefix - kindBase), number & indexMask};
}

}  // namespace metagen::replay

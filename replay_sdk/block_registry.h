// The memory blocks that the library hands out, each to be given back once. Every block is known
// by its address, so that freeing an address that is none does no harm.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "replay_sdk/entry_point.h"

namespace metagen::replay {

class BlockRegistry {
public:
    /// With remembersReleased, the addresses of released blocks are kept, to tell a block that is
    /// freed twice from an unknown address.
    explicit BlockRegistry(bool remembersReleased);
    ~BlockRegistry();  ///< frees what is left
    BlockRegistry(const BlockRegistry&) = delete;
    BlockRegistry& operator=(const BlockRegistry&) = delete;

    /// A block of its own, at least one byte large, owned by the caller of the entry point.
    void* allocate(std::size_t size, EntryPoint maker);

    /// A copy of the text with its NUL.
    char* copyText(std::string_view text, EntryPoint maker);

    /// Frees the block and tells which entry point had made it; nothing when it is no live block.
    std::optional<EntryPoint> release(void* memory);

    /// The maker of the block that stood at this address until it was released.
    std::optional<EntryPoint> makerOfReleased(const void* memory) const;

    /// The maker of the live block at this address.
    std::optional<EntryPoint> makerOfLive(const void* memory) const;

    std::size_t createdCount() const { return created; }
    std::size_t liveCount() const { return live.size(); }

    /// How many blocks of each maker are live.
    std::map<EntryPoint, std::size_t> liveByMaker() const;

private:
    bool remembers;
    std::size_t created = 0;
    std::unordered_map<const void*, EntryPoint> live;
    std::unordered_map<const void*, EntryPoint> released;
};

}  // namespace metagen::replay

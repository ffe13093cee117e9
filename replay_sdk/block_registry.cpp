#include "replay_sdk/block_registry.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace metagen::replay {

namespace {

std::optional<EntryPoint> find(const std::unordered_map<const void*, EntryPoint>& blocks,
                               const void* memory) {
    const auto block = blocks.find(memory);
    if (block == blocks.end()) return std::nullopt;
    return block->second;
}

}  // namespace

BlockRegistry::BlockRegistry(bool remembersReleased) : remembers(remembersReleased) {}

BlockRegistry::~BlockRegistry() {
    for (const auto& [memory, maker] : live) std::free(const_cast<void*>(memory));
}

void* BlockRegistry::allocate(std::size_t size, EntryPoint maker) {
    // From malloc, each by itself: memory checkers then see every misuse of a block.
    void* memory = std::malloc(std::max<std::size_t>(size, 1));
    if (memory == nullptr) throw std::bad_alloc();
    ++created;
    live.emplace(memory, maker);
    if (remembers) released.erase(memory);
    return memory;
}

char* BlockRegistry::copyText(std::string_view text, EntryPoint maker) {
    char* copy = static_cast<char*>(allocate(text.size() + 1, maker));
    text.copy(copy, text.size());
    copy[text.size()] = '\0';
    return copy;
}

std::optional<EntryPoint> BlockRegistry::release(void* memory) {
    const auto block = live.find(memory);
    if (block == live.end()) return std::nullopt;
    const EntryPoint maker = block->second;
    live.erase(block);
    if (remembers) released.emplace(memory, maker);
    std::free(memory);
    return maker;
}

std::optional<EntryPoint> BlockRegistry::makerOfReleased(const void* memory) const {
    return find(released, memory);
}

std::optional<EntryPoint> BlockRegistry::makerOfLive(const void* memory) const {
    return find(live, memory);
}

std::map<EntryPoint, std::size_t> BlockRegistry::liveByMaker() const {
    std::map<EntryPoint, std::size_t> counts;
    for (const auto& [memory, maker] : live) ++counts[maker];
    return counts;
}

}  // namespace metagen::replay

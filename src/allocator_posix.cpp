// How the tool's allocator, jemalloc, goes about its work: a run is short and its trees only grow.
#include <sys/mman.h>

#include <cstddef>

#include <jemalloc/jemalloc.h>

/// Read by the allocator when it starts. One arena, since commands have one thread, and nothing
/// given back to the system before the end.
const char* malloc_conf = "narenas:1,oversize_threshold:0,dirty_decay_ms:-1,muzzy_decay_ms:-1";

namespace {

/// From here on memory comes in huge pages. The allocator asks for twice as much each time, so that
/// a run with a small document never comes this far: clearing huge pages would take it longer than
/// all the rest.
constexpr std::size_t smallestHuge = std::size_t{8} << 20U;

extent_hooks_t* standardHooks = nullptr;

void* allocateExtent(extent_hooks_t* /*hooks*/, void* address, std::size_t size,
                     std::size_t alignment, bool* zero, bool* commit, unsigned arena) {
    void* extent =
        standardHooks->alloc(standardHooks, address, size, alignment, zero, commit, arena);
    // Page faults would take half the time that parsing takes. Without huge pages it is only
    // slower.
    if (extent != nullptr && size >= smallestHuge) {
        static_cast<void>(madvise(extent, size, MADV_HUGEPAGE));
    }
    return extent;
}

bool preferHugePages() {
    constexpr const char* setting = "arena.0.extent_hooks";
    constexpr std::size_t pointerSize = sizeof(void*);
    static extent_hooks_t hooks;
    std::size_t size = pointerSize;
    if (mallctl(setting, static_cast<void*>(&standardHooks), &size, nullptr, 0) != 0) return false;
    hooks = *standardHooks;
    hooks.alloc = allocateExtent;
    extent_hooks_t* replacement = &hooks;
    return mallctl(setting, nullptr, nullptr, static_cast<void*>(&replacement), pointerSize) == 0;
}

/// Before the first command, so that the hooks see every large extent.
const bool prefersHugePages = preferHugePages();

}  // namespace

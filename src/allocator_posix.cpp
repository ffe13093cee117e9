// How the tool's allocator, jemalloc, goes about its work: a run is short and its trees only grow.
#include <sys/mman.h>

#include <cstddef>

#include <jemalloc/jemalloc.h>

/// Read by the allocator when it starts. One arena, since commands have one thread, and nothing
/// given back to the system before the end.
const char* malloc_conf = "narenas:1,oversize_threshold:0,dirty_decay_ms:-1,muzzy_decay_ms:-1";

namespace {

/// The allocator asks for a little more memory each time, up to this: no more than a cache holds,
/// since the pages of a step are cleared before the first of them is used.
constexpr std::size_t largestStep = std::size_t{1} << 20U;

extent_hooks_t* standardHooks = nullptr;

void* allocateExtent(extent_hooks_t* /*hooks*/, void* address, std::size_t size,
                     std::size_t alignment, bool* zero, bool* commit, unsigned arena) {
    void* extent =
        standardHooks->alloc(standardHooks, address, size, alignment, zero, commit, arena);
    // A large tree fills all of it. To have its pages made at once costs half of what it costs to
    // be interrupted for each. A system that can't do that makes them one by one.
    if (extent != nullptr && size == largestStep) {
        static_cast<void>(madvise(extent, size, MADV_POPULATE_WRITE));
    }
    return extent;
}

/// The place of a setting's value, as the allocator wants it.
template <typename Value>
void* placeOf(Value& value) {
    return static_cast<void*>(&value);
}

bool makePagesInSteps() {
    constexpr std::size_t pointerSize = sizeof(void*);
    static extent_hooks_t hooks;
    std::size_t size = pointerSize;
    if (mallctl("arena.0.extent_hooks", placeOf(standardHooks), &size, nullptr, 0) != 0)
        return false;
    hooks = *standardHooks;
    hooks.alloc = allocateExtent;
    extent_hooks_t* replacement = &hooks;
    std::size_t step = largestStep;
    return mallctl("arena.0.extent_hooks", nullptr, nullptr, placeOf(replacement), pointerSize) ==
               0 &&
           mallctl("arena.0.retain_grow_limit", nullptr, nullptr, placeOf(step), sizeof step) == 0;
}

/// Before the first command, so that every large step is seen.
const bool makesPagesInSteps = makePagesInSteps();

}  // namespace

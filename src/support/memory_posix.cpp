#include <sys/mman.h>

#include "support/memory.h"

namespace metagen {

void preferLargePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#ifdef MADV_HUGEPAGE
    constexpr std::size_t largePage = std::size_t{1} << 21U;
    if (std::align(largePage, largePage, memory, size) == nullptr) return;  // it holds none
    static_cast<void>(madvise(memory, size - size % largePage, MADV_HUGEPAGE));
#endif
}

}  // namespace metagen

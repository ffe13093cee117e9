#include "support/memory.h"

namespace metagen {

void* LargePages::do_allocate(std::size_t size, std::size_t alignment) {
    void* const memory = std::pmr::new_delete_resource()->allocate(size, alignment);
    preferLargePages(memory, size);
    return memory;
}

void LargePages::do_deallocate(void* memory, std::size_t size, std::size_t alignment) {
    std::pmr::new_delete_resource()->deallocate(memory, size, alignment);
}

}  // namespace metagen

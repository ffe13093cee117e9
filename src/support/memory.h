// Memory for what lives and goes together, and for texts of the size of a document.
#pragma once

#include <cstddef>
#include <memory>
#include <memory_resource>
#include <span>
#include <string>
#include <type_traits>

#include "support/platform.h"

namespace metagen {

/// Makes room for that many bytes in all.
inline void reserveText(std::string& text, std::size_t size) {
    text.reserve(size);
    preferLargePages(text.data() + text.size(), text.capacity() - text.size());
}

/// Memory of the standard library's, in large pages.
class LargePages : public std::pmr::memory_resource {
    void* do_allocate(std::size_t size, std::size_t alignment) override {
        void* const memory = std::pmr::new_delete_resource()->allocate(size, alignment);
        preferLargePages(memory, size);
        return memory;
    }
    void do_deallocate(void* memory, std::size_t size, std::size_t alignment) override {
        std::pmr::new_delete_resource()->deallocate(memory, size, alignment);
    }
    [[nodiscard]] bool do_is_equal(const memory_resource& other) const noexcept override {
        return this == &other;
    }
};

/// Hands out memory piece by piece and gives all of it back at its end.
class Arena {
public:
    /// A copy of the nodes that lives as long as the arena.
    template <typename Node>
    std::span<const Node> keep(std::span<const Node> nodes) {
        static_assert(std::is_trivially_destructible_v<Node>);
        if (nodes.empty()) return {};
        auto* const place = static_cast<Node*>(memory.allocate(nodes.size_bytes(), alignof(Node)));
        std::uninitialized_copy(nodes.begin(), nodes.end(), place);
        return {place, nodes.size()};
    }

private:
    LargePages pages;
    std::pmr::monotonic_buffer_resource memory{&pages};
};

}  // namespace metagen

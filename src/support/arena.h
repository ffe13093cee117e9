// Memory for what lives and goes together.
#pragma once

#include <memory>
#include <memory_resource>
#include <span>
#include <type_traits>

namespace metagen {

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
    std::pmr::monotonic_buffer_resource memory;
};

}  // namespace metagen

// The order in which the base and the combined document list plugins, parameters and keys.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace metagen {

/// The combined key order. "type", exactly, comes first and equals only itself. All other keys
/// compare with "_" as "." and letters lower-cased, byte by byte as signed numbers, a prefix
/// first. Keys that differ only in case, or only in "_" against ".", are equal: a map keeps the
/// first of them, and that folding is deliberate.
struct CombinedKeyLess {
    using is_transparent = void;

    bool operator()(std::string_view left, std::string_view right) const;
};

/// For each name its place, from 0, among the different ones in the combined order.
std::vector<std::size_t> placesInOrder(const std::vector<std::string>& names);

}  // namespace metagen

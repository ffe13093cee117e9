#include "metadata/key_order.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>

namespace metagen {

namespace {

/// Every byte as it compares, by its unsigned value.
constexpr std::array<std::int8_t, 256> foldedBytes = [] {
    std::array<std::int8_t, 256> folded = {};
    for (std::size_t code = 0; code < folded.size(); ++code) {
        const bool upperCase = code >= 'A' && code <= 'Z';
        const std::size_t lower = upperCase ? code + ('a' - 'A') : code;
        folded[code] = static_cast<std::int8_t>(code == '_' ? '.' : lower);
    }
    return folded;
}();

std::int8_t folded(char byte) { return foldedBytes[static_cast<unsigned char>(byte)]; }

constexpr std::string_view first = "type";

}  // namespace

bool CombinedKeyLess::operator()(std::string_view left, std::string_view right) const {
    if (right == first) return false;
    if (left == first) return true;
    const std::size_t shared = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < shared; ++i) {
        if (left[i] == right[i]) continue;  // most bytes: names of one class begin alike
        const int order = folded(left[i]) - folded(right[i]);
        if (order != 0) return order < 0;
    }
    return left.size() < right.size();
}

std::vector<std::size_t> placesInOrder(const std::vector<std::string>& names) {
    std::vector<std::size_t> order(names.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto less = [&names](std::size_t left, std::size_t right) {
        return CombinedKeyLess()(names[left], names[right]);
    };
    std::ranges::sort(order, less);
    std::vector<std::size_t> places(names.size());
    std::size_t place = 0;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (less(order[i - 1], order[i])) ++place;
        places[order[i]] = place;
    }
    return places;
}

}  // namespace metagen

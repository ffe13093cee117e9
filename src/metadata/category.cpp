#include "metadata/base_document.h"

#include <array>
#include <bit>

#include "sdk/parameter_type.h"

namespace metagen {

namespace {

constexpr std::uint32_t bit(int code) { return std::uint32_t{1} << static_cast<unsigned>(code); }

constexpr std::uint32_t knownBits = bit(20) - 1;
constexpr std::uint32_t minorBits = bit(17) | bit(18) | bit(19);
constexpr int settingsCode = 8;

constexpr int texture = 9;
constexpr std::array<int, 5> codesByPrecedence = {4, 5, 1, texture, 3};

CategoryResolution only(std::uint32_t bits) {
    return {.name = categoryName(std::countr_zero(bits))};
}

}  // namespace

CategoryResolution resolveCategory(std::uint64_t bits) {
    std::uint32_t left = static_cast<std::uint32_t>(bits) & knownBits;
    if (left == 0) return {};
    if (std::has_single_bit(left)) return only(left);
    left &= ~minorBits;
    if (std::has_single_bit(left)) return only(left);
    left &= ~bit(settingsCode);
    if (std::has_single_bit(left)) return only(left);
    for (const int code : codesByPrecedence) {
        if ((left & bit(code)) != 0) return {.name = categoryName(code)};
    }
    return {.name = std::nullopt, .conflict = true, .conflictingBits = left};
}

}  // namespace metagen

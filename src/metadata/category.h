// Plugin categories: the SDK's category bits and the one name that a document gives.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace metagen {

/// What a plugin's category bits come to.
struct CategoryResolution {
    /// The category's name; none for a plugin without category and for a category without name.
    std::optional<std::string_view> name;
    /// The bits can't be reconciled.
    bool conflict = false;
    /// After a conflict, the bits that reconciling left; may be none.
    std::uint32_t conflictingBits = 0;
};

/// The name of a category code, or none.
std::optional<std::string_view> categoryName(int code);

/// Reconciles the category bits (bit n stands for category code n; bits from 20 up don't count).
CategoryResolution resolveCategory(std::uint64_t bits);

}  // namespace metagen

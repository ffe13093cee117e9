// Where the reading of a document stopped that is not JSON: what is open there, and what went
// before.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace metagen::lint {

/// Of the text that was read until then.
struct ReadingPlace {
    static constexpr std::size_t none = std::string_view::npos;

    explicit ReadingPlace(std::string_view read);

    /// In an object, and not in an array or outside of all.
    [[nodiscard]] bool isInObject() const { return open.ends_with('{'); }

    /// Behind a whole value or key.
    [[nodiscard]] bool followsValue() const;

    std::string open;                ///< the brackets that are open, the outermost first
    std::size_t stringBegin = none;  ///< of the text that is open
    bool isKeyNext = false;          ///< a key belongs here, or here ends one
    std::size_t last = none;         ///< where the last byte stands that is no blank
    char before = '\0';              ///< that byte
};

/// Whether a word, a number or a name in quotes may hold the byte.
bool isWordByte(char byte);

}  // namespace metagen::lint

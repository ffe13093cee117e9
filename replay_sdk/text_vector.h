// A list of NUL-terminated texts that owns a copy of every one, so that a text read from it dies
// with it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace metagen::replay {

class TextVector {
public:
    void append(std::string_view text) {
        offsets.push_back(characters.size());
        characters.append(text).push_back('\0');
    }

    /// Appends an element that reads as a null pointer.
    void appendNull() { offsets.push_back(nullOffset); }

    std::size_t size() const { return offsets.size(); }

    /// The element, or null when it is null or there is none with this index.
    const char* at(std::size_t index) const {
        if (index >= offsets.size() || offsets[index] == nullOffset) return nullptr;
        return characters.data() + offsets[index];
    }

private:
    static constexpr std::size_t nullOffset = static_cast<std::size_t>(-1);
    std::string characters;  ///< the texts, each with its NUL
    std::vector<std::size_t> offsets;
};

}  // namespace metagen::replay

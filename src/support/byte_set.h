// Sets of bytes, asked for every byte of a text.
#pragma once

#include <array>
#include <cstddef>

namespace metagen {

/// A set as a predicate that is one look into a table.
class ByteSet {
public:
    /// The bytes for which contains(unsigned char) is true.
    template <typename Contains>
    constexpr explicit ByteSet(Contains contains) {
        for (std::size_t code = 0; code < members.size(); ++code) {
            members[code] = contains(static_cast<unsigned char>(code));
        }
    }

    constexpr bool operator()(char byte) const { return members[static_cast<unsigned char>(byte)]; }

private:
    std::array<bool, 256> members = {};
};

}  // namespace metagen

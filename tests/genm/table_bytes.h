// The bytes that binary tables are made of, for the tests of what writes them.
#pragma once

#include <bit>
#include <cstdint>
#include <string>

namespace metagen {

/// The bytes of a number, the lowest first.
inline std::string u32(std::uint32_t number) {
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(static_cast<unsigned char>(number >> shift));
    }
    return bytes;
}

inline std::string i32(std::int32_t number) { return u32(static_cast<std::uint32_t>(number)); }

inline std::string f32(float number) { return u32(std::bit_cast<std::uint32_t>(number)); }

/// A text with its length before it.
inline std::string text(const std::string& bytes) {
    return u32(static_cast<std::uint32_t>(bytes.size())) + bytes;
}

}  // namespace metagen

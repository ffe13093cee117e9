// The encoding of the binary tables: primitives appended to a buffer without alignment, padding or
// separators, every number little-endian whatever the machine. Hosts load the files byte by byte as
// they stand here.
#pragma once

#include <bit>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace metagen {

inline void appendU32(std::string& table, std::uint32_t number) {
    const char bytes[] = {static_cast<char>(number), static_cast<char>(number >> 8U),
                          static_cast<char>(number >> 16U), static_cast<char>(number >> 24U)};
    table.append(bytes, sizeof bytes);
}

inline void appendI32(std::string& table, std::int32_t number) {
    appendU32(table, static_cast<std::uint32_t>(number));
}

/// IEEE 754 binary32.
inline void appendF32(std::string& table, float number) {
    appendU32(table, std::bit_cast<std::uint32_t>(number));
}

/// The number of elements that follow, as a u32.
inline void appendCount(std::string& table, std::size_t count) {
    appendU32(table, static_cast<std::uint32_t>(count));
}

/// The length in bytes as a u32, then the bytes; no NUL, no conversion.
inline void appendText(std::string& table, std::string_view text) {
    appendCount(table, text.size());
    table += text;
}

/// The elements back to back, without a count.
inline void appendNumbers(std::string& table, std::span<const float> numbers) {
    for (const float number : numbers) appendF32(table, number);
}
inline void appendNumbers(std::string& table, std::span<const std::int32_t> numbers) {
    for (const std::int32_t number : numbers) appendI32(table, number);
}

}  // namespace metagen

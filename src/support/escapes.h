// The bytes of a text that don't stand for themselves: found eight bytes at a time, and escaped as
// the base document and the string literals of generated source do.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace metagen {

namespace special_bytes {

/// A word of eight equal bytes.
constexpr std::uint64_t repeated(char byte) {
    return std::uint64_t{0x0101010101010101U} * static_cast<unsigned char>(byte);
}

/// Marks, with the highest bit of each, the bytes of the word that are below the limit, which is at
/// most 0x80. Of the marks only the lowest is sure: a borrow may mark bytes above it.
constexpr std::uint64_t below(std::uint64_t word, char limit) {
    return (word - repeated(limit)) & ~word & repeated('\x80');
}

/// Marks the bytes that are equal to this one, in the same way.
constexpr std::uint64_t equal(std::uint64_t word, char byte) {
    return below(word ^ repeated(byte), '\x01');
}

}  // namespace special_bytes

/// The first byte that is a control character, that is, below 0x20, or one of the others; the end
/// when there is none. Looks at eight bytes at a time.
template <char... others>
const char* findSpecial(const char* begin, const char* end) {
    constexpr char firstPlain = ' ';
    if constexpr (std::endian::native == std::endian::little) {
        std::uint64_t word = 0;
        for (; end - begin >= static_cast<std::ptrdiff_t>(sizeof word); begin += sizeof word) {
            std::memcpy(&word, begin, sizeof word);
            const std::uint64_t marks =
                (special_bytes::below(word, firstPlain) | ... | special_bytes::equal(word, others));
            if (marks != 0) return begin + std::countr_zero(marks) / 8;
        }
    }
    return std::find_if(begin, end, [](char byte) {
        return static_cast<unsigned char>(byte) < firstPlain || ((byte == others) || ...);
    });
}

/// Appends the text: backspace, tab, line feed, form feed, carriage return, double quote and
/// backslash as their two-character escapes, any other byte below 32, NUL among them, as \u and
/// four lower-case hexadecimal digits, every other byte, 128 and above included, as it is.
void appendEscaped(std::string& out, std::string_view text);

}  // namespace metagen

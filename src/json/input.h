// What the JSON library reads from, for a text that lies in one buffer: the library's own input
// steps through any iterator byte by byte and copies every string; this one knows that the bytes
// are side by side, and where they stay. Part of the parser; nobody else includes it.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

#include <picojson.h>

#include "json/value.h"
#include "support/escapes.h"
#include "support/memory.h"

namespace metagen::json {

/// Selects the input below. It is never used as an iterator.
struct BufferIterator {};

}  // namespace metagen::json

/// The library's input, with the same operations and the same meaning.
template <>
class picojson::input<metagen::json::BufferIterator> {
public:
    /// Strings with escapes go to the arena; all others stay where they are.
    input(std::string_view text, metagen::Arena& stringArena)
        : begin(text.data()),
          position(begin),
          previous(begin),
          end(begin + text.size()),
          arena(stringArena) {}

    /// The next byte, or -1 at the end.
    int getc() {
        previous = position;
        return position == end ? -1 : static_cast<unsigned char>(*position++);
    }

    /// Takes the last getc back; a second call in a row changes nothing.
    void ungetc() { position = previous; }

    void skip_ws() {
        while (position != end && isBlank(*position)) ++position;
        previous = position;
    }

    bool expect(int expected) {
        skip_ws();
        if (getc() == expected) return true;
        ungetc();
        return false;
    }

    bool match(std::string_view pattern) {
        for (const char byte : pattern) {
            if (getc() == byte) continue;
            ungetc();
            return false;
        }
        return true;
    }

    /// The line that the input stands on, counting from 1.
    [[nodiscard]] int line() const {
        return 1 + static_cast<int>(std::count(begin, position, '\n'));
    }

    /// How many bytes were read.
    [[nodiscard]] std::uint32_t offset() const {
        return static_cast<std::uint32_t>(position - begin);
    }

    /// Reads a string up to its closing quote; false when it is none. Stands after the opening one.
    bool takeString() {
        const char* const start = position;
        position = metagen::findSpecial<'"', '\\'>(position, end);
        if (position == end || *position != '"') return takeEscaped(start);
        string = {start, position};
        ++position;
        return true;
    }

    /// What takeString read.
    [[nodiscard]] std::string_view lastString() const { return string; }

private:
    static bool isBlank(char byte) {
        return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
    }

    /// Reads on from the first byte that doesn't stand for itself.
    bool takeEscaped(const char* start) {
        const auto offset = static_cast<std::uint32_t>(start - begin) - 1;
        std::string bytes(sizeof offset, '\0');  // before the text, where it begins
        std::memcpy(bytes.data(), &offset, sizeof offset);
        bytes.append(start, position);
        while (true) {
            const int special = getc();
            if (special == '"') break;
            if (special != '\\' || !appendUnescaped(bytes)) {
                ungetc();
                return false;
            }
            const char* const plain = position;
            position = metagen::findSpecial<'"', '\\'>(position, end);
            bytes.append(plain, position);
        }
        const std::span<const char> kept = arena.keep(std::span<const char>(bytes));
        string = std::string_view(kept.data(), kept.size()).substr(sizeof offset);
        return true;
    }

    /// Appends what the escape after a backslash stands for; false when it is none.
    bool appendUnescaped(std::string& out) {
        constexpr std::string_view letters = "\"\\/bfnrt";
        constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
        const int letter = getc();
        if (letter == 'u') return picojson::_parse_codepoint(out, *this);
        const std::size_t index =
            letter < 0 ? std::string_view::npos : letters.find(static_cast<char>(letter));
        if (index == std::string_view::npos) return false;
        out += meanings[index];
        return true;
    }

    const char* begin;
    const char* position;
    const char* previous;
    const char* end;
    metagen::Arena& arena;
    std::string_view string;
};

namespace metagen::json {

using Input = picojson::input<BufferIterator>;

/// The library's reading of a string, up to its closing quote. The library finds it by the type of
/// its input, for the keys of objects. Nothing is copied: the input knows what it read.
inline bool _parse_string(std::string& /*out*/, Input& in) { return in.takeString(); }

}  // namespace metagen::json

// What the JSON library reads from, for a text that lies in one buffer: the library's own input
// steps through any iterator byte by byte; this one knows that the bytes are side by side. Part of
// the JSON module; nobody else includes it.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include <picojson.h>

#include "support/special_bytes.h"

namespace metagen::json {

/// Selects the input below. It is never used as an iterator.
struct BufferIterator {};

}  // namespace metagen::json

/// The library's input, with the same operations and the same meaning.
template <>
class picojson::input<metagen::json::BufferIterator> {
public:
    explicit input(std::string_view text)
        : begin(text.data()), position(begin), previous(begin), end(begin + text.size()) {}

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

    /// Takes the bytes up to the next one that is special within a string: a double quote, a
    /// backslash or a control character.
    std::string_view takePlain() {
        const char* const start = position;
        position = metagen::findSpecial<'"', '\\'>(position, end);
        previous = position;
        return {start, static_cast<std::size_t>(position - start)};
    }

private:
    static bool isBlank(char byte) {
        return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
    }

    const char* begin;
    const char* position;
    const char* previous;
    const char* end;
};

namespace metagen::json {

using Input = picojson::input<BufferIterator>;

/// Appends what the escape after a backslash stands for; false when it is none.
inline bool appendUnescaped(std::string& out, Input& in) {
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
    const int letter = in.getc();
    if (letter == 'u') return picojson::_parse_codepoint(out, in);
    const std::size_t index =
        letter < 0 ? std::string_view::npos : letters.find(static_cast<char>(letter));
    if (index == std::string_view::npos) return false;
    out += meanings[index];
    return true;
}

/// The library's reading of a string, up to its closing quote, in runs of plain bytes. The library
/// finds it by the type of its input.
inline bool _parse_string(std::string& out, Input& in) {
    while (true) {
        out += in.takePlain();
        const int special = in.getc();
        if (special == '"') return true;
        if (special != '\\' || !appendUnescaped(out, in)) {
            in.ungetc();
            return false;
        }
    }
}

}  // namespace metagen::json

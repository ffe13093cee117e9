#include "support/escaped_text.h"

#include <algorithm>
#include <array>

namespace metagen {

namespace {

/// The letter of the byte's two-character escape, or NUL when it has none.
char shortEscape(char byte) {
    switch (byte) {
        case '\b': return 'b';
        case '\t': return 't';
        case '\n': return 'n';
        case '\f': return 'f';
        case '\r': return 'r';
        case '"': return '"';
        case '\\': return '\\';
        default: return '\0';
    }
}

/// The bytes that stand for themselves. A NUL is none of them.
constexpr std::array<bool, 256> plainBytes = [] {
    std::array<bool, 256> plain = {};
    for (std::size_t code = 0x20; code < plain.size(); ++code) {
        plain[code] = code != '"' && code != '\\';
    }
    return plain;
}();

bool isPlain(char byte) { return plainBytes[static_cast<unsigned char>(byte)]; }

void appendEscapedByte(std::string& out, char byte) {
    constexpr char hexadecimal[] = "0123456789abcdef";
    if (const char letter = shortEscape(byte); letter != '\0') {
        out += '\\';
        out += letter;
        return;
    }
    const auto code = static_cast<unsigned char>(byte);
    out += "\\u00";
    out += hexadecimal[code >> 4U];
    out += hexadecimal[code & 0xFU];
}

}  // namespace

void appendEscaped(std::string& out, std::string_view text) {
    auto rest = text.begin();
    while (true) {
        const auto special = std::find_if_not(rest, text.end(), isPlain);
        out.append(rest, special);
        if (special == text.end() || *special == '\0') return;
        appendEscapedByte(out, *special);
        rest = special + 1;
    }
}

}  // namespace metagen

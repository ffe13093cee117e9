#include "support/escapes.h"

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
    const char* rest = text.data();
    const char* const end = rest + text.size();
    while (true) {
        const char* const special = findSpecial<'"', '\\'>(rest, end);
        out.append(rest, special);
        if (special == end) return;
        appendEscapedByte(out, *special);
        rest = special + 1;
    }
}

}  // namespace metagen

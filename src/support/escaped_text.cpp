#include "support/escaped_text.h"

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

bool isPlain(char byte) {
    return static_cast<unsigned char>(byte) >= 0x20 && byte != '"' && byte != '\\';
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
    text = text.substr(0, text.find('\0'));
    std::size_t begin = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isPlain(text[i])) continue;
        out.append(text, begin, i - begin);
        appendEscapedByte(out, text[i]);
        begin = i + 1;
    }
    out.append(text, begin);
}

}  // namespace metagen

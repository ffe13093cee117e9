// The parser tells only how far it came. What stands there tells the rest.
#include <algorithm>
#include <array>
#include <cmath>

#include "lint/checks.h"
#include "lint/reading_place.h"
#include "lint/wording.h"
#include "support/numbers.h"

namespace metagen::lint {

namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view digits = "0123456789";
constexpr std::string_view numberLetters = "0123456789+-.eE";

bool isDigit(char byte) { return digits.find(byte) != std::string_view::npos; }

bool isUtf16(std::string_view text) {
    return text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF") ||
           text.substr(0, 2).find('\0') != std::string_view::npos;
}

/// The character that begins there, with all its bytes.
std::string_view characterAt(std::string_view text, std::size_t begin) {
    std::size_t end = begin + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) ++end;
    return text.substr(begin, end - begin);
}

/// Quotes as word processors set them.
bool isCurvedQuote(std::string_view character) {
    constexpr std::array<std::string_view, 8> quotes = {"\u2018", "\u2019", "\u201A", "\u201C",
                                                        "\u201D", "\u201E", "\u00AB", "\u00BB"};
    return std::ranges::find(quotes, character) != quotes.end();
}

class SyntaxError {
public:
    explicit SyntaxError(const json::Document& document)
        : text(document.text()),
          offset(document.sizeRead()),
          where(text.substr(0, document.sizeRead())) {}

    std::string message() {
        if (text.size() > json::maximumSize) return "the document is too long";
        if (text.find_first_not_of(blanks) == std::string_view::npos) {
            return "the document is empty";
        }
        if (text.starts_with("\xEF\xBB\xBF")) {
            return "the document begins with a byte-order mark; save it as UTF-8 without one";
        }
        if (isUtf16(text)) {
            offset = 0;
            return "the document is in UTF-16; save it as UTF-8";
        }
        if (where.open.size() > 100 && (where.before == '[' || where.before == '{')) {
            return "the document nests too deeply";
        }
        if (where.stringBegin != ReadingPlace::none) return inString();
        if (std::string number = wrongNumber(); !number.empty()) return number;
        return outsideOfStrings();
    }

    [[nodiscard]] std::uint32_t place() const { return static_cast<std::uint32_t>(offset); }

private:
    std::string inString() {
        const std::size_t begin = where.stringBegin;
        const char byte = offset < text.size() ? text[offset] : '\n';
        if (byte == '\n' || byte == '\r') {
            const bool ends = offset >= text.size();
            offset = begin;
            return ends ? "the text that begins here isn't closed"
                        : "the text that begins here isn't closed on its line; a line end within "
                          "a text is written \\n";
        }
        if (byte == '\t') return "a tab within a text is written \\t";
        if (static_cast<unsigned char>(byte) < 0x20U) {
            return "a control character within a text is written " +
                   printable(text.substr(offset, 1));
        }
        return "a backslash stands before what makes no escape; write \\\\ for a backslash";
    }

    /// The parser has read a number by the time it is known to be too large, or to lack its end.
    std::string wrongNumber() {
        std::size_t begin = offset;
        while (begin > 0 && numberLetters.find(text[begin - 1]) != std::string_view::npos) --begin;
        const std::string_view number = text.substr(begin, offset - begin);
        if (number.empty() || !(isDigit(number.front()) || number.front() == '-')) return "";
        const bool isHuge = !std::isfinite(readDoublePrefix(number));
        if (!isHuge && (isDigit(number.back()) || number.back() == '.')) return "";
        offset = begin;
        return "the number " + inQuotes(number) + (isHuge ? " is too large" : " lacks its end");
    }

    std::string outsideOfStrings() {
        offset = std::min(text.find_first_not_of(blanks, offset), text.size());
        if (offset == text.size()) {
            return where.open.empty() ? "the document ends too early"
                                      : "the document ends before all its brackets are closed";
        }
        const char byte = text[offset];
        if (byte == '/' || byte == '#') return "JSON has no comments";
        if (byte == '\'') return "texts and keys stand in double quotes";
        if ((byte == '}' || byte == ']') && where.before == ',') {
            offset = where.last;
            return "nothing follows this comma; take it out";
        }
        const bool isOpening = byte == '"' || byte == '{' || byte == '[';
        if (isOpening && where.followsValue()) return missing("") + " before this";
        if (isWordByte(byte)) return wordMessage();
        if (byte == ':' && where.open.ends_with('[')) {
            return "a colon stands only in an object, between { and }; this is an array";
        }
        if (byte == '}' && where.open.ends_with('[')) return "the array is closed by ], not }";
        if (byte == ']' && where.isInObject()) return "the object is closed by }, not ]";
        if (byte == '+' || byte == '.') return "a number begins with a digit or a minus";
        const std::string_view character = characterAt(text, offset);
        if (isCurvedQuote(character)) {
            return "texts and keys stand in straight double quotes, not in " +
                   std::string(character);
        }
        return wanted() + " belongs here, not " + inQuotes(character);
    }

    [[nodiscard]] std::string wanted() const {
        if (!where.followsValue()) return where.isKeyNext ? "a key in double quotes" : "a value";
        if (where.before == '"' && where.isKeyNext) return "a colon";
        return where.isInObject() ? "a comma or }" : "a comma or ]";
    }

    /// What belongs between what was read and what comes.
    [[nodiscard]] std::string missing(std::string_view orElse) const {
        const bool isKey = where.before == '"' && where.isKeyNext;
        return (isKey ? "a colon" : "a comma") + std::string(orElse) + " is missing";
    }

    std::string wordMessage() {
        // The parser may have read the first letters of a word that isn't one.
        while (offset > 0 && isWordByte(text[offset - 1])) --offset;
        std::size_t end = offset;
        while (end < text.size() && isWordByte(text[end])) ++end;
        const std::string_view word = text.substr(offset, end - offset);
        const std::string quoted = inQuotes(word);
        if (where.followsValue() && offset > where.last) {
            return missing(where.before == '"' ? " or a quote" : "") + " before " + quoted;
        }
        if (isFraction(word.front())) {
            offset = where.last;
            return "this comma ends a value; a number has a point before its fraction";
        }
        if (where.isKeyNext) return quoted + " is no key; keys stand in double quotes";
        if (isDigit(word.front())) return quoted + " is no number as JSON has them";
        for (const std::string_view known : {"true", "false", "null"}) {
            if (std::ranges::equal(word, known, {}, lowerCased)) {
                return quoted + " is written " + std::string(known);
            }
        }
        return quoted + " is no JSON value; texts stand in double quotes";
    }

    /// As in 0,5, which has no blank.
    [[nodiscard]] bool isFraction(char byte) const {
        return isDigit(byte) && where.isKeyNext && where.before == ',' &&
               offset == where.last + 1 && where.last > 0 && isDigit(text[where.last - 1]);
    }

    std::string_view text;
    std::size_t offset;
    ReadingPlace where;
};

}  // namespace

void checkSyntax(const json::Document& document, Findings& findings) {
    SyntaxError error(document);
    std::string message = "not JSON: " + error.message();
    findings.add(rule::syntax, error.place(), std::move(message));
}

void checkTrailingText(const json::Document& document, Findings& findings) {
    const std::string_view text = document.text();
    const std::uint32_t end = document.sizeRead();
    const std::size_t next = text.find_first_not_of(blanks, end);
    if (next == std::string_view::npos) return;
    findings
        .add(rule::trailingText, static_cast<std::uint32_t>(next),
             "the document ends before this, so nothing reads it")
        .notes.push_back({end - 1, "its last bracket"});
}

}  // namespace metagen::lint

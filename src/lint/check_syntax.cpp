// The parser tells only how far it came. What stands there tells the rest.
#include <algorithm>
#include <cmath>

#include "lint/checks.h"
#include "lint/wording.h"
#include "support/numbers.h"

namespace metagen::lint {

namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view numberLetters = "0123456789+-.eE";
constexpr std::string_view letters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789";

/// How deep the brackets are open at the end of a text, and whether a string is.
struct Nesting {
    std::size_t depth = 0;
    std::size_t stringBegin = std::string_view::npos;
};

Nesting nestingOf(std::string_view text) {
    Nesting nesting;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char byte = text[i];
        if (nesting.stringBegin != std::string_view::npos) {
            if (byte == '\\') ++i;
            if (byte == '"') nesting.stringBegin = std::string_view::npos;
        } else if (byte == '"') {
            nesting.stringBegin = i;
        } else if (byte == '{' || byte == '[') {
            ++nesting.depth;
        } else if ((byte == '}' || byte == ']') && nesting.depth > 0) {
            --nesting.depth;
        }
    }
    return nesting;
}

class SyntaxError {
public:
    explicit SyntaxError(const json::Document& document)
        : text(document.text()), offset(document.errorOffset()) {
        const std::string_view read = text.substr(0, offset);
        nesting = nestingOf(read);
        const std::size_t last = read.find_last_not_of(blanks);
        before = last == std::string_view::npos ? '\0' : read[last];
        lastRead = last;
    }

    std::string message() {
        if (text.size() > json::maximumSize) return "the document is too long";
        if (text.find_first_not_of(blanks) == std::string_view::npos) {
            return "the document is empty";
        }
        if (text.starts_with("\xEF\xBB\xBF")) {
            return "the document begins with a byte-order mark; save it as UTF-8 without one";
        }
        if (nesting.depth > 100 && (before == '[' || before == '{')) {
            return "the document nests too deeply";
        }
        if (nesting.stringBegin != std::string_view::npos) return inString();
        if (std::string number = hugeNumber(); !number.empty()) return number;
        return outsideOfStrings();
    }

    [[nodiscard]] std::uint32_t place() const { return static_cast<std::uint32_t>(offset); }

private:
    std::string inString() {
        const std::size_t begin = nesting.stringBegin;
        const bool isEscape = before == '\\' && lastRead + 1 == offset;
        if (offset < text.size() && static_cast<unsigned char>(text[offset]) < 0x20U) {
            offset = begin;
            return "the text that begins here isn't closed on its line; a line end within a text "
                   "is written \\n";
        }
        if (offset >= text.size()) {
            offset = begin;
            return "the text that begins here isn't closed";
        }
        return isEscape || text.substr(begin, offset - begin).find('\\') != std::string_view::npos
                   ? "a backslash stands before what makes no escape; write \\\\ for a backslash"
                   : "the text can't be read any further";
    }

    /// The parser has read a number by the time it is known to be too large.
    std::string hugeNumber() {
        std::size_t begin = offset;
        while (begin > 0 && numberLetters.find(text[begin - 1]) != std::string_view::npos) --begin;
        const std::string_view number = text.substr(begin, offset - begin);
        if (number.empty() || std::isfinite(readDoublePrefix(number))) return "";
        offset = begin;
        return "the number " + inQuotes(number) + " is too large";
    }

    std::string outsideOfStrings() {
        const std::size_t next = std::min(text.find_first_not_of(blanks, offset), text.size());
        if (next == text.size()) {
            offset = text.size();
            return nesting.depth == 0 ? "the document ends too early"
                                      : "the document ends before all its brackets are closed";
        }
        offset = next;
        const char byte = text[next];
        if (byte == '/' || byte == '#') return "JSON has no comments";
        if (byte == '\'') return "texts and keys stand in double quotes";
        if ((byte == '}' || byte == ']') && before == ',') {
            offset = lastRead;
            return "nothing follows this comma; take it out";
        }
        const bool followsValue = before == '"' || before == '}' || before == ']' || isWord(before);
        if (byte == '"' && followsValue) return "a comma or a colon is missing before this";
        if (isWord(byte)) return wordMessage(followsValue);
        if ((byte == '{' || byte == '[') && followsValue) return "a comma is missing before this";
        return "JSON has no " + inQuotes(text.substr(next, 1)) + " here";
    }

    std::string wordMessage(bool followsValue) {
        // The parser may have read the first letters of a word that isn't one.
        while (offset > 0 && isWord(text[offset - 1])) --offset;
        const std::size_t end = std::min(text.find_first_not_of(letters, offset), text.size());
        const std::string word = inQuotes(text.substr(offset, end - offset));
        if (followsValue && offset > lastRead)
            return "a comma or a colon is missing before " + word;
        return word + " is no JSON value; texts and keys stand in double quotes";
    }

    static bool isWord(char byte) {
        return byte != '\0' && letters.find(byte) != std::string_view::npos;
    }

    std::string_view text;
    std::size_t offset;
    Nesting nesting;
    char before = '\0';  ///< the last byte that was read and is no blank
    std::size_t lastRead = 0;
};

}  // namespace

void checkSyntax(const json::Document& document, Findings& findings) {
    SyntaxError error(document);
    std::string message = error.message() + ", so no command reads the document";
    findings.add(rule::syntax, error.place(), std::move(message));
}

}  // namespace metagen::lint

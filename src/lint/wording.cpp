#include "lint/wording.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "lint/nearest_name.h"
#include "support/escapes.h"
#include "support/numbers.h"

namespace metagen::lint {

namespace {

constexpr std::size_t longestQuote = 80;

/// The length of the UTF-8 sequence that the text begins with; 0 when it is none.
std::size_t sequenceLength(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80U) return 1;
    const std::size_t length = first >= 0xF0U ? 4 : first >= 0xE0U ? 3 : 2;
    if (first < 0xC2U || first > 0xF4U || text.size() < length) return 0;
    std::uint32_t code = first & (0x7FU >> length);
    for (const char byte : text.substr(1, length - 1)) {
        if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80U) return 0;
        code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    constexpr std::array<std::uint32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = code >= 0xD800U && code <= 0xDFFFU;
    return code < smallest[length] || code > 0x10FFFFU || isSurrogate ? 0 : length;
}

}  // namespace

std::string printable(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = sequenceLength(text);
        const auto code = static_cast<unsigned char>(text.front());
        if (length == 0) {
            out += "\xEF\xBF\xBD";
        } else if (code == 0x7FU) {
            out += "\\u007f";
        } else if (code < 0x20U) {
            appendEscaped(out, text.substr(0, 1));
        } else {
            out += text.substr(0, length);
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return out;
}

std::string inQuotes(std::string_view text) {
    const bool isLong = text.size() > longestQuote;
    if (isLong) {
        text = text.substr(0, longestQuote - 3);
        // Not within a character.
        while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0x80U) != 0) {
            const bool isFirst = (static_cast<unsigned char>(text.back()) & 0x40U) != 0;
            text.remove_suffix(1);
            if (isFirst) break;
        }
    }
    return '"' + printable(text) + (isLong ? "...\"" : "\"");
}

std::string described(const json::Value& value) {
    switch (value.kind()) {
        case json::Kind::null: return "null";
        case json::Kind::boolean: return *value.boolean() ? "true" : "false";
        case json::Kind::number: {
            std::string number;
            appendGeneral(number, *value.number());
            return number;
        }
        case json::Kind::text: return inQuotes(*value.text());
        case json::Kind::array: return "an array";
        case json::Kind::object: break;
    }
    return "an object";
}

std::string ownerName(std::string_view plugin, std::string_view parameter) {
    std::string owner = printable(plugin.substr(0, longestQuote));
    owner += ' ';
    return owner += printable(parameter.substr(0, longestQuote));
}

std::string didYouMean(std::string_view name) {
    return name.empty() ? "" : " (did you mean " + inQuotes(name) + "?)";
}

std::string didYouMean(std::string_view word, std::span<const std::string_view> known) {
    NearestName finder;
    finder.begin(word);
    std::string all;
    for (const std::string_view candidate : known) {
        finder.consider(candidate);
        all.append(all.empty() ? "" : ", ").append(candidate);
    }
    return finder.nearest().empty() ? " (known are " + all + ")" : didYouMean(finder.nearest());
}

}  // namespace metagen::lint

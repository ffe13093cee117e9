#include "lint/reading_place.h"

namespace metagen::lint {

namespace {

constexpr std::string_view letters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789";

}  // namespace

bool isWordByte(char byte) { return letters.find(byte) != std::string_view::npos; }

ReadingPlace::ReadingPlace(std::string_view read) {
    for (std::size_t i = 0; i < read.size(); ++i) {
        const char byte = read[i];
        if (stringBegin != none) {
            if (byte == '\\') ++i;
            if (byte == '"') stringBegin = none;
        } else if (byte == '"') {
            stringBegin = i;
        } else if (byte == '{' || byte == '[') {
            open += byte;
            isKeyNext = byte == '{';
        } else if ((byte == '}' || byte == ']') && !open.empty()) {
            open.pop_back();
            isKeyNext = false;
        } else if (byte == ',') {
            isKeyNext = isInObject();
        } else if (byte == ':') {
            isKeyNext = false;
        }
    }
    last = read.find_last_not_of(" \t\r\n");
    if (last != none) before = read[last];
}

bool ReadingPlace::followsValue() const {
    return before == '"' || before == '}' || before == ']' || isWordByte(before);
}

}  // namespace metagen::lint

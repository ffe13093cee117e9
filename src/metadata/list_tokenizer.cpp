#include "metadata/default_value_parser.h"

#include <algorithm>

#include "support/numbers.h"

namespace metagen {

namespace {

constexpr std::size_t none = std::string_view::npos;

/// Where the elements of "List(" begin. Deliberately the same place whatever the list's word is,
/// which is why "List()" has no element and "IntList()" an empty one.
constexpr std::size_t elementsOfPlainList = 5;

bool isLetter(char byte) { return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z'); }

bool isAllBlank(std::string_view text) { return std::ranges::all_of(text, isBlank); }

std::string_view withoutBlanksBefore(std::string_view text) {
    const auto letter = std::ranges::find_if_not(text, isBlank);
    return text.substr(static_cast<std::size_t>(letter - text.begin()));
}

std::string_view withoutBlanksAfter(std::string_view text) {
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

}  // namespace

bool isListText(std::string_view text) {
    constexpr std::string_view word = "List";
    constexpr std::size_t lastOffset = 5;
    const std::string_view trimmed = withoutBlanksBefore(text.substr(0, text.find('\0')));
    const std::size_t offset = trimmed.substr(0, lastOffset + word.size()).find(word);
    if (offset == none) return false;
    const std::string_view fromWord = trimmed.substr(offset);
    const auto end = std::ranges::find_if_not(fromWord, isLetter);
    return end != fromWord.end() && *end == '(';
}

std::optional<std::string_view> ListTokenizer::first() {
    cursor = 0;
    if (!isListText(text)) return std::nullopt;
    const std::size_t opening = text.find('(', elementsOfPlainList - 1);
    if (opening == none) return std::nullopt;
    cursor = opening + 1;
    return take(Step::first);
}

std::optional<std::string_view> ListTokenizer::next() {
    return cursor == 0 ? first() : take(Step::later);
}

std::optional<std::string_view> ListTokenizer::take(Step step) {
    const std::size_t end = findEnd(step);
    if (end == none) return std::nullopt;
    const std::size_t begin = cursor;
    const std::string_view rest = withoutBlanksBefore(text.substr(begin, end - begin));
    cursor = end - rest.size();
    const std::string_view element = withoutBlanksAfter(rest);
    if (element.empty() && end < text.size() && text[end] == ')' &&
        isAllBlank(text.substr(elementsOfPlainList, begin - elementsOfPlainList))) {
        return std::nullopt;
    }
    cursor = end + 1;
    return element;
}

/// Where the element at the cursor ends: at the next comma, which for an element with parentheses
/// is the one after its first ")", or at the last ")" of the whole text; `none` after the last
/// element.
std::size_t ListTokenizer::findEnd(Step step) const {
    const std::size_t comma = cursor < text.size() ? text.find(',', cursor) : none;
    if (comma != none) {
        const std::size_t opening = text.substr(cursor, comma - cursor).find('(');
        return opening == none ? comma : findNestedEnd(cursor + opening);
    }
    const std::size_t last = text.rfind(')');
    if (last == none || last < cursor) return none;
    // Between the parentheses of "IntList()" stands an empty element; after a comma there is none.
    return last == cursor && step == Step::later ? none : last;
}

/// The same for an element with parentheses; without a further comma it ends with its ")".
std::size_t ListTokenizer::findNestedEnd(std::size_t opening) const {
    const std::size_t closing = text.find(')', opening + 1);
    if (closing == none) return none;
    const std::size_t comma = text.find(',', closing + 1);
    return comma == none ? closing + 1 : comma;
}

}  // namespace metagen

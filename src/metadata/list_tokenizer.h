// The element texts of a list's default value text, such as "IntList(1, 2)". Deliberately shallow:
// it splits at fixed characters, and existing documents rely on where.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace metagen {

/// Whether "List" stands at one of the offsets 0 to 5 from the first character that is no blank,
/// and "(" follows the letters that begin with the first such "List". So "IntList(" is a list
/// text; "VectorList(" and "TransformList(" are not: those lists have no readable text.
bool isListText(std::string_view text);

/// Walks the elements. It understands one level of parentheses: "Color(1, 1, 1)" is one element,
/// "Matrix(Vector(1, 0, 0), ...)" is cut after its first ")".
class ListTokenizer {
public:
    /// The text must outlive the tokenizer and its elements.
    explicit ListTokenizer(std::string_view listText) : text(listText) {}

    /// The first element, from the start of the text; nothing when the text is no list or its
    /// parentheses hold nothing but blanks. An element is trimmed and may be empty.
    std::optional<std::string_view> first();

    /// The element after the last one given (the first when none was); nothing at the end.
    std::optional<std::string_view> next();

private:
    enum class Step { first, later };

    std::optional<std::string_view> take(Step step);
    [[nodiscard]] std::size_t findEnd(Step step) const;
    [[nodiscard]] std::size_t findNestedEnd(std::size_t opening) const;

    std::string_view text;
    std::size_t cursor = 0;  ///< 0: not started
};

}  // namespace metagen

// Reads default value texts back into numbers. Deliberately shallow: the type word before "(" is
// never compared, and existing documents rely on what the readers accept. Single integers, bools
// and floats are read by `parseInteger` and `parseFloat`.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

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

/// Cuts the text at "(" and ","; field 0 is the type word. Reads the fields with the wanted
/// numbers, which ascend, into out, which has at least as many places. True when all of them were
/// there; a field that is no number reads as 0, fields after the last wanted one are ignored.
bool readFixedFields(std::string_view text, std::span<const int> wantedFields,
                     std::span<float> out);

/// Each reads a value of its kind by its field numbers (a vector or a colour, a colour with alpha,
/// a matrix by rows, a matrix and an offset), and is false when the text has too few fields; out
/// then holds whatever was read.
bool parseVector3(std::string_view text, std::span<float, 3> out);
bool parseAColor(std::string_view text, std::span<float, 4> out);
bool parseMatrix(std::string_view text, std::span<float, 9> out);
bool parseTransform(std::string_view text, std::span<float, 12> out);

/// Each appends the elements of a list text. False, with nothing appended, when the text is no list
/// text (see `isListText`). An element that is no number is 0; integers beyond 32 bits keep the low
/// 32 bits of the nearest 64-bit integer.
bool parseIntList(std::string_view text, std::vector<std::int32_t>& out);
bool parseFloatList(std::string_view text, std::vector<float>& out);

/// The same for elements with parentheses, the floats of each behind those before it. False also at
/// an element that its reader refuses; those before it stay appended.
bool parseVector3List(std::string_view text, std::vector<float>& out);
bool parseAColorList(std::string_view text, std::vector<float>& out);
bool parseMatrixList(std::string_view text, std::vector<float>& out);
bool parseTransformList(std::string_view text, std::vector<float>& out);

}  // namespace metagen

#include "metadata/default_value_parser.h"

#include <algorithm>
#include <array>
#include <optional>

#include "support/numbers.h"

namespace metagen {

namespace {

// The fields of the numbers in "Color(1, 0, 0)", "AColor(1, 0, 0, 1)", "Matrix(Vector(1, 0, 0),
// ...)" and "Transform(Matrix(Vector(1, 0, 0), ...), Vector(0, 0, 0))": every word takes one too.
constexpr std::array vector3Fields = {1, 2, 3};
constexpr std::array acolorFields = {1, 2, 3, 4};
constexpr std::array matrixFields = {2, 3, 4, 6, 7, 8, 10, 11, 12};
constexpr std::array transformFields = {3, 4, 5, 7, 8, 9, 11, 12, 13, 15, 16, 17};

/// Calls take for every element while it returns true; whether the text is a list and all were
/// taken.
template <typename Take>
bool forEachElement(std::string_view text, const Take& take) {
    if (!isListText(text)) return false;
    ListTokenizer tokenizer(text);
    while (const std::optional<std::string_view> element = tokenizer.next()) {
        if (!take(*element)) return false;
    }
    return true;
}

template <std::size_t Count>
bool parseCompoundList(std::string_view text, const std::array<int, Count>& fields,
                       std::vector<float>& out) {
    return forEachElement(text, [&](std::string_view element) {
        std::array<float, Count> values = {};
        if (!readFixedFields(element, fields, values)) return false;
        out.insert(out.end(), values.begin(), values.end());
        return true;
    });
}

}  // namespace

bool readFixedFields(std::string_view text, std::span<const int> wantedFields,
                     std::span<float> out) {
    text = text.substr(0, text.find('\0'));
    const auto isSeparator = [](char byte) { return byte == '(' || byte == ','; };
    std::size_t taken = 0;
    for (int field = 0; taken < wantedFields.size(); ++field) {
        // The number is read from the rest of the text: it ends where it can't go on.
        if (field == wantedFields[taken]) out[taken++] = toFloat(readDoublePrefix(text));
        const auto separator = std::ranges::find_if(text, isSeparator);
        if (separator == text.end()) break;
        text.remove_prefix(static_cast<std::size_t>(separator - text.begin()) + 1);
    }
    return taken == wantedFields.size();
}

bool parseVector3(std::string_view text, std::span<float, 3> out) {
    return readFixedFields(text, vector3Fields, out);
}

bool parseAColor(std::string_view text, std::span<float, 4> out) {
    return readFixedFields(text, acolorFields, out);
}

bool parseMatrix(std::string_view text, std::span<float, 9> out) {
    return readFixedFields(text, matrixFields, out);
}

bool parseTransform(std::string_view text, std::span<float, 12> out) {
    return readFixedFields(text, transformFields, out);
}

bool parseIntList(std::string_view text, std::vector<std::int32_t>& out) {
    return forEachElement(text, [&out](std::string_view element) {
        out.push_back(lowBitsToInt32(readIntegerPrefix(element)));
        return true;
    });
}

bool parseFloatList(std::string_view text, std::vector<float>& out) {
    return forEachElement(text, [&out](std::string_view element) {
        out.push_back(toFloat(readDoublePrefix(element)));
        return true;
    });
}

bool parseVector3List(std::string_view text, std::vector<float>& out) {
    return parseCompoundList(text, vector3Fields, out);
}

bool parseAColorList(std::string_view text, std::vector<float>& out) {
    return parseCompoundList(text, acolorFields, out);
}

bool parseMatrixList(std::string_view text, std::vector<float>& out) {
    return parseCompoundList(text, matrixFields, out);
}

bool parseTransformList(std::string_view text, std::vector<float>& out) {
    return parseCompoundList(text, transformFields, out);
}

}  // namespace metagen

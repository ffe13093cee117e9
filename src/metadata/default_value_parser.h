// Reads default value texts back into numbers. Deliberately shallow: the type word before "(" is
// never compared, and existing documents rely on what the readers accept. Single integers, bools
// and floats are read by `parseInteger` and `parseFloat`.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace metagen {

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

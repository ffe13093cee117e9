// The default value of one parameter as the tables hold it: read once from its text, written as
// generated source and as a record of the binary table.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "genm/value_arrays.h"
#include "model/meta_model.h"

namespace metagen {

/// The number is the bitwise or of the constants that the text names: of RDT_FLOAT 1, RDT_INT 2,
/// RDT_STRING 4; STDT_SINGLE 8, STDT_ARRAY_3 16, STDT_ARRAY_4 32, STDT_ARRAY_9 64,
/// STDT_ARRAY_12 128; SQDT_SINGLE 256, SQDT_LIST 512. Before an array's name the text takes a comma
/// and a blank, which are not part of it.
struct Descriptor {
    std::uint32_t number;
    std::string_view text;
};

namespace descriptor {
inline constexpr Descriptor vector3 = {
    273, "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE"};
inline constexpr Descriptor acolor = {
    289, "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE"};
inline constexpr Descriptor matrix = {
    321, "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_SINGLE"};
inline constexpr Descriptor transform = {
    385, "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE"};
inline constexpr Descriptor floatList = {
    521, "1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST"};
inline constexpr Descriptor integerList = {
    522, "1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST"};
inline constexpr Descriptor stringList = {
    524, "1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST"};
inline constexpr Descriptor vector3List = {
    529, "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST"};
inline constexpr Descriptor acolorList = {
    545, "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_LIST"};
inline constexpr Descriptor matrixList = {
    577, "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_LIST"};
inline constexpr Descriptor transformList = {
    641, "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_LIST"};
}  // namespace descriptor

/// Whether it describes a list (SQDT_LIST) and not a single value.
constexpr bool isList(const Descriptor& descriptor) { return (descriptor.number & 512U) != 0; }

/// The bare numbers that stand before the value of a scaling condition: RDT_FLOAT or RDT_INT, with
/// STDT_SINGLE and SQDT_SINGLE.
inline constexpr std::uint32_t singleFloatDescriptor = 265;
inline constexpr std::uint32_t singleIntegerDescriptor = 266;

/// A value that is known only by its type.
struct DescriptorOnly {
    const Descriptor* descriptor;
};

struct IntegerArray {
    const Descriptor* descriptor;
    std::span<const std::int32_t> values;
};

/// The floats of all elements, one after the other. A single value that could not be read has
/// none; a list without elements has none, too.
struct FloatArray {
    const Descriptor* descriptor;
    std::string_view prefix;  ///< the group of its value array
    std::span<const float> values;
};

/// Holds the values of the default that was read last.
struct DefaultValues {
    std::vector<std::int32_t> integers;
    std::vector<float> floats;
};

/// The index of the alternative is the kind of the binary record. Texts are the document's.
using DefaultRecord =
    std::variant<std::int32_t, float, std::string_view, DescriptorOnly, IntegerArray, FloatArray>;

/// Whether defaults of that type can be read.
bool hasDefaultRule(std::int32_t code);

/// Reads the default of a type. There may be no text only where the code is a list's.
/// Integers, bools, floats and float textures throw the errors of `parseInteger` and `parseFloat`.
/// A code without a rule prints "unsupported type" and a line feed on standard output and ends the
/// process with status -1.
DefaultRecord readTypedDefault(std::int32_t code, std::optional<std::string_view> text,
                               DefaultValues& values);

/// Reads the parameter's default. One that is no list and has no default text has the empty text,
/// or 0 when it is an integer, and its type is not looked at any further.
DefaultRecord readDefault(const MetaParameter& parameter, DefaultValues& values);

/// Appends the default as generated source: a literal, or a descriptor and, where there are values,
/// the name of the array that holds them.
void appendDefault(std::string& out, const DefaultRecord& record, ValueArrays& groups);

/// Appends the binary record. It carries the values themselves, not the arrays' names.
void appendDefaultRecord(std::string& records, const DefaultRecord& record);

}  // namespace metagen

// The SDK's vocabulary of parameter types and of the values that they have: one row for each type,
// which whoever reads, writes or serves values goes by. And that of plugin categories.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace metagen {

/// The SDK's property type codes. A list code is an element code plus `listOffset`; the generic
/// list has a code of its own.
namespace type_code {
inline constexpr std::int32_t unknown = -1;
inline constexpr std::int32_t integer = 0;
inline constexpr std::int32_t floatNumber = 1;
inline constexpr std::int32_t doubleNumber = 2;
inline constexpr std::int32_t boolean = 3;
inline constexpr std::int32_t vector = 4;
inline constexpr std::int32_t color = 5;
inline constexpr std::int32_t acolor = 6;
inline constexpr std::int32_t matrix = 7;
inline constexpr std::int32_t transform = 8;
inline constexpr std::int32_t string = 9;
inline constexpr std::int32_t plugin = 10;
inline constexpr std::int32_t texture = 11;
inline constexpr std::int32_t list = 12;
inline constexpr std::int32_t floatTexture = 13;
inline constexpr std::int32_t integerTexture = 14;
inline constexpr std::int32_t vectorTexture = 15;
inline constexpr std::int32_t matrixTexture = 16;
inline constexpr std::int32_t transformTexture = 17;
inline constexpr std::int32_t listOffset = 100;
inline constexpr std::int32_t unspecified = 10000;
}  // namespace type_code

/// What a value is made of. Who tells the shapes apart lists them all, so that the compiler points
/// out every place that doesn't know a new one.
enum class ValueShape : std::uint8_t {
    none,  ///< no value is of this kind
    integer,
    single,
    real,
    boolean,
    floats,
    text,
    plugin,
    values,  ///< of any kinds
};

struct ParameterType {
    std::int32_t code;
    std::string_view name;      ///< in documents
    ValueShape shape;           ///< of the value whose kind is the code
    std::size_t components;     ///< of ValueShape::floats, otherwise 1
    std::string_view word;      ///< in the text of such a value before "("
    std::string_view listWord;  ///< of the list whose kind is the list code; empty: there is none
    /// The kind of the value that a user-interface guide gives; `unknown` when none can.
    std::int32_t guided;
    /// Whether single values of the type are read back from their texts. Doubles never arise from
    /// documents.
    bool isReadable;
};

/// In the order of the codes.
inline constexpr std::array<ParameterType, 18> parameterTypes = {{
    {type_code::integer, "integer", ValueShape::integer, 1, "", "IntList", type_code::integer,
     true},
    {type_code::floatNumber, "float", ValueShape::single, 1, "", "FloatList",
     type_code::floatNumber, true},
    {type_code::doubleNumber, "double", ValueShape::real, 1, "", "", type_code::floatNumber, false},
    {type_code::boolean, "bool", ValueShape::boolean, 1, "", "", type_code::boolean, true},
    {type_code::vector, "vector", ValueShape::floats, 3, "Vector", "VectorList", type_code::vector,
     true},
    {type_code::color, "color", ValueShape::floats, 3, "Color", "ColorList", type_code::color,
     true},
    {type_code::acolor, "acolor", ValueShape::floats, 4, "AColor", "", type_code::acolor, true},
    {type_code::matrix, "matrix", ValueShape::floats, 9, "Matrix", "", type_code::matrix, true},
    {type_code::transform, "transform", ValueShape::floats, 12, "Transform", "TransformList",
     type_code::transform, true},
    {type_code::string, "string", ValueShape::text, 1, "", "StringList", type_code::unknown, false},
    {type_code::plugin, "plugin", ValueShape::plugin, 1, "", "PluginList", type_code::color, true},
    {type_code::texture, "texture", ValueShape::none, 1, "", "", type_code::color, true},
    {type_code::list, "list", ValueShape::values, 1, "List", "", type_code::unknown, false},
    {type_code::floatTexture, "float texture", ValueShape::none, 1, "", "", type_code::floatNumber,
     true},
    {type_code::integerTexture, "integer texture", ValueShape::none, 1, "", "", type_code::integer,
     false},
    {type_code::vectorTexture, "vector texture", ValueShape::none, 1, "", "", type_code::vector,
     false},
    {type_code::matrixTexture, "matrix texture", ValueShape::none, 1, "", "", type_code::matrix,
     false},
    {type_code::transformTexture, "transform texture", ValueShape::none, 1, "", "",
     type_code::transform, false},
}};

/// Whether the code is a list's.
constexpr bool isListCode(std::int32_t code) {
    return code == type_code::list || code >= type_code::listOffset;
}

/// The type of a single value with that code or kind; null when there is none.
const ParameterType* findType(std::int32_t code);

/// The type of the elements of a list of that kind; null for any other kind, the generic list too.
const ParameterType* findElementType(std::int32_t kind);

/// The code of a list of such elements; a list of lists is a generic list.
constexpr std::int32_t listCodeOf(std::int32_t elementCode) {
    return elementCode == type_code::list ? type_code::list : elementCode + type_code::listOffset;
}

/// Whether the vocabulary has a name for the code.
bool hasTypeName(std::int32_t code);

/// The name of a code; a list code gives the name of its element. Doubles are deliberately named
/// "float". A code outside the vocabulary prints "Error No Ovix Type!" and a line feed on standard
/// output and ends the process with status -1.
std::string_view typeName(std::int32_t code);

/// The code of a single type's name, or -1. Compared exactly, case included; the colour textures
/// fold into the plain texture.
std::int32_t typeCode(std::string_view name);

/// The same; where the name is "list", the code of the list whose elements have the other name.
std::int32_t typeCode(std::string_view name, std::string_view listTypeName);

/// The name of a category of plugins by the number of its bit, or none.
std::optional<std::string_view> categoryName(int code);

}  // namespace metagen

// The vocabulary of parameter types: the SDK's numeric codes and the names that documents use.
#pragma once

#include <cstdint>
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

/// Whether the code is a list's.
constexpr bool isListCode(std::int32_t code) {
    return code == type_code::list || code >= type_code::listOffset;
}

/// Whether the vocabulary has a name for the code.
bool hasTypeName(std::int32_t code);

/// The name of a code; a list code gives the name of its element. Doubles are deliberately named
/// "float". A code outside the vocabulary prints "Error No Ovix Type!" and a line feed on standard
/// output and ends the process with status -1.
std::string_view typeName(std::int32_t code);

/// The code of a name, or -1. The list type name counts only where the name is "list". Compared
/// exactly, case included; the colour textures fold into the plain texture.
std::int32_t typeCode(std::string_view name, std::string_view listTypeName);

}  // namespace metagen

// Type descriptors: what a host is told about the shape of a default value. Each has a text for
// generated source, in the host's own vocabulary, and a number for the binary table.
#pragma once

#include <cstdint>
#include <string_view>

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

}  // namespace metagen

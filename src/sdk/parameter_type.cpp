#include "sdk/parameter_type.h"

#include <algorithm>
#include <array>

#include "support/end_run.h"

namespace metagen {

namespace {

struct NamedCode {
    std::string_view name;
    std::int32_t code;
};

/// The first name of a code is the one that is written.
constexpr std::array<NamedCode, 20> vocabulary = {{
    {"integer", type_code::integer},
    {"float", type_code::floatNumber},
    {"float", type_code::doubleNumber},  // a double is deliberately written as a float
    {"double", type_code::doubleNumber},
    {"bool", type_code::boolean},
    {"vector", type_code::vector},
    {"color", type_code::color},
    {"acolor", type_code::acolor},
    {"matrix", type_code::matrix},
    {"transform", type_code::transform},
    {"string", type_code::string},
    {"plugin", type_code::plugin},
    {"texture", type_code::texture},
    {"acolor texture", type_code::texture},
    {"color texture", type_code::texture},
    {"float texture", type_code::floatTexture},
    {"integer texture", type_code::integerTexture},
    {"vector texture", type_code::vectorTexture},
    {"matrix texture", type_code::matrixTexture},
    {"transform texture", type_code::transformTexture},
}};

constexpr std::string_view listName = "list";

std::int32_t elementCode(std::string_view name) {
    const auto entry = std::ranges::find(vocabulary, name, &NamedCode::name);
    return entry == vocabulary.end() ? type_code::unknown : entry->code;
}

/// The name that is written for the code; empty when there is none.
std::string_view findName(std::int32_t code) {
    if (code == type_code::list) return listName;
    constexpr std::int32_t firstListCode = type_code::listOffset;
    const std::int32_t element = code >= firstListCode ? code - firstListCode : code;
    const auto entry = std::ranges::find(vocabulary, element, &NamedCode::code);
    return entry == vocabulary.end() ? std::string_view() : entry->name;
}

}  // namespace

bool hasTypeName(std::int32_t code) { return !findName(code).empty(); }

std::string_view typeName(std::int32_t code) {
    const std::string_view name = findName(code);
    if (!name.empty()) return name;
    endRun(brokenMetadataStatus, "Error No Ovix Type!\n");
}

std::int32_t typeCode(std::string_view name, std::string_view listTypeName) {
    if (name != listName) return elementCode(name);
    if (listTypeName == listName) return type_code::list;  // a list of lists has no code of its own
    const std::int32_t element = elementCode(listTypeName);
    return element == type_code::unknown ? type_code::unknown : element + type_code::listOffset;
}

}  // namespace metagen

#include "sdk/parameter_type.h"

#include <algorithm>

#include "support/end_run.h"

namespace metagen {

namespace {

constexpr std::array<std::string_view, 17> categoryNames = {
    "bitmap",         "BRDF",     "node",     "geometry", "light",     "material",
    "render_channel", "settings", "settings", "texture",  "texture",   "texture",
    "texture",        "texture",  "texture",  "uvw",      "volumetric"};

/// The type that a code names: its own, or that of a list's elements.
const ParameterType* findNamedType(std::int32_t code) {
    const bool isTypedList =
        code >= type_code::listOffset && code != type_code::listOffset + type_code::list;
    return findType(isTypedList ? code - type_code::listOffset : code);
}

}  // namespace

const ParameterType* findType(std::int32_t code) {
    const auto row = static_cast<std::size_t>(code);  // of a negative code beyond all rows
    return row < parameterTypes.size() ? &parameterTypes[row] : nullptr;
}

const ParameterType* findElementType(std::int32_t kind) {
    const ParameterType* type = findType(kind - type_code::listOffset);
    return type == nullptr || type->listWord.empty() ? nullptr : type;
}

bool hasTypeName(std::int32_t code) { return findNamedType(code) != nullptr; }

std::string_view typeName(std::int32_t code) {
    const ParameterType* type = findNamedType(code);
    if (type == nullptr) endRun(brokenMetadataStatus, "Error No Ovix Type!\n");
    return type->code == type_code::doubleNumber ? "float" : type->name;
}

std::int32_t typeCode(std::string_view name) {
    if (name == "acolor texture" || name == "color texture") return type_code::texture;
    const auto type = std::ranges::find(parameterTypes, name, &ParameterType::name);
    return type == parameterTypes.end() ? type_code::unknown : type->code;
}

std::int32_t typeCode(std::string_view name, std::string_view listTypeName) {
    const std::int32_t code = typeCode(name);
    if (code != type_code::list) return code;
    const std::int32_t element = typeCode(listTypeName);
    return element == type_code::unknown ? type_code::unknown : listCodeOf(element);
}

std::optional<std::string_view> categoryName(int code) {
    const auto place = static_cast<std::size_t>(code);  // of a negative code beyond all names
    return place < categoryNames.size() ? std::optional(categoryNames[place]) : std::nullopt;
}

}  // namespace metagen

// The words of a catalogue: names of parameter types, of categories and of the kinds of default
// values, with the numbers that the SDK uses for them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace metagen::replay {

/// The type code of a single value's type name, "list" being 12. Nothing for an unknown name.
std::optional<std::int32_t> typeCodeOf(std::string_view typeName);

/// The type code of a list with elements of this type; a list of lists is a generic list.
std::int32_t listTypeCode(std::int32_t elementTypeCode);

/// A category bit that alone gives the category's name. Nothing for an unknown name.
std::optional<unsigned> categoryBitOf(std::string_view categoryName);

/// The tag of a kind's name, such as "color" or "integerList". Nothing for an unknown name.
std::optional<std::int32_t> kindOf(std::string_view kindName);

}  // namespace metagen::replay

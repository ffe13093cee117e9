// The words of a catalogue beside the names of parameter types: those of categories and of the
// kinds of default values, with the numbers that the SDK uses for them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace metagen::replay {

/// A category bit that alone gives the category's name. Nothing for an unknown name.
std::optional<unsigned> categoryBitOf(std::string_view categoryName);

/// The tag of a kind's name, such as "color" or "integerList". Nothing for an unknown name.
std::optional<std::int32_t> kindOf(std::string_view kindName);

}  // namespace metagen::replay

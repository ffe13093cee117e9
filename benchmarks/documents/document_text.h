// What documents say of an invented parameter. Written apart from the tool's own writers, on
// purpose: the benchmarks compare the two.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "benchmarks/invented_sdk/invented_parameter.h"

namespace metagen::invented {

/// The name of a type code, of its elements for a list's: "float texture".
std::string_view typeNameOf(std::int32_t typeCode);

/// The text of the parameter's default value; nothing when documents leave it out.
std::optional<std::string> defaultTextOf(const InventedParameter& parameter);

/// "Color(1, 0.5, 0)", "IntList(1, 2)", "library/shared_texture_7::out_color".
std::string textOf(const replay::DefaultValue& value);

/// The text as a JSON string, with its quotes.
std::string quoted(std::string_view text);

}  // namespace metagen::invented

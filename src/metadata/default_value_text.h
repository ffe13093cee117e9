// Default values as text: the text form, which travels through every document, and the values that
// user-interface guides give.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "sdk/qyra_sdk.h"

namespace metagen {

/// Appends the text of a value: "Color(1, 0.5, 0)", "IntList(1, 2)", "#BadValue". Elements are
/// separated by a comma and a blank, numbers have six significant digits, texts stand as they are.
/// Plugin references are looked up with their renderer, which must still live.
void appendDefaultValueText(std::string& out, const QyraValue& value);

/// Builds the value from a guide's single number and its sequence; nothing hangs below it. Throws
/// std::invalid_argument "Wrong type of default values" for a type that no guide can describe, and
/// "Wrong size of default values" for a sequence whose length does not fit the type. A vector
/// texture takes the first three floats, whatever the length: missing ones are zero.
QyraValue valueOfGuide(std::int32_t code, float number, std::span<const float> sequence);

}  // namespace metagen

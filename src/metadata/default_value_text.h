// The text form of default values, which travels through every document.
#pragma once

#include <cstddef>
#include <string>

#include "sdk/qyra_sdk.h"

namespace metagen {

/// Appends the text of a value: "Color(1, 0.5, 0)", "IntList(1, 2)", "#BadValue". Elements are
/// separated by a comma and a blank, numbers have six significant digits, texts stand as they are.
/// Plugin references are looked up with their renderer, which must still live.
void appendDefaultValueText(std::string& out, const QyraValue& value);

}  // namespace metagen

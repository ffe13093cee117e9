// Default values from user-interface guides.
#pragma once

#include <cstdint>
#include <span>

#include "sdk/qyra_sdk.h"

namespace metagen {

/// Builds the value from a guide's single number and its sequence; nothing hangs below it. Throws
/// std::invalid_argument "Wrong type of default values" for a type that no guide can describe, and
/// "Wrong size of default values" for a sequence whose length does not fit the type. A vector
/// texture takes the first three floats, whatever the length: missing ones are zero.
QyraValue valueOfGuide(std::int32_t code, float number, std::span<const float> sequence);

}  // namespace metagen

// Where a parameter's default value comes from: its user-interface guide, or the SDK's own
// default value.
#pragma once

#include <cstdint>
#include <span>

#include "metadata/tagged_value.h"
#include "sdk/qyra_sdk.h"

namespace metagen {

/// Asks for the default value of a parameter with that type code. A guide of kind 22 on the
/// definition wins over the SDK's default value. Throws what `valueOfGuide` throws.
TaggedValue queryDefaultValue(const void* definition, std::int32_t code);

/// Builds the value from a guide's single float and its sequence. Throws std::invalid_argument
/// "Wrong type of default values" for a type that no guide can describe, and "Wrong size of
/// default values" for a sequence whose length does not fit the type. A vector texture takes the
/// first three floats, whatever the length: missing ones are zero.
TaggedValue valueOfGuide(std::int32_t code, float single, std::span<const float> sequence);

/// The value that the SDK's value stands for: the same tag, and the payload copied. A kind that
/// is not known keeps its tag and has no payload.
TaggedValue valueOfSdk(const QyraValue& value);

}  // namespace metagen

// The conditions of the scaling table: another parameter of the same plugin has a given value.
#pragma once

#include <string>
#include <string_view>

#include "model/combined_model.h"
#include "model/obstream.h"

namespace metagen {

/// The value is read by the type of the parameter that the condition names, one of the plugin of
/// that name; see writeScalingTable for what is refused.
void writeCondition(BinaryFile& file, const ScaleCondition& condition, const CombinedModel& model,
                    std::string_view plugin);

/// Appends the condition as "{ name, operation, value }". The operation must be 1.
void appendCondition(std::string& out, const ScaleCondition& condition, const CombinedModel& model,
                     std::string_view plugin);

}  // namespace metagen

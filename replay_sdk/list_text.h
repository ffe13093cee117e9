// List values from the texts in which documents keep them, such as "IntList(1, 2)": the value for
// which the tool writes exactly that text again.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "replay_sdk/default_value.h"

namespace metagen::replay {

/// Gives the id of a plugin instance of this name.
using InstanceNaming = std::function<std::int64_t(std::string_view name)>;

/// The list, with at least one element. Nothing when no list value is written as this text, such
/// as "IntList(01)", "IntList()" or "1, 2". Elements of a generic list come back as texts: the
/// list then has other kinds inside than the list that the text came from, and the same text.
std::optional<DefaultValue> listFromText(std::string_view text, const InstanceNaming& instanceOf);

}  // namespace metagen::replay

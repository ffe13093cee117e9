// What the tables hold, in words for people.
#pragma once

#include <string>
#include <vector>

#include "metagen/host/handlers.h"
#include "metagen/host/meta.h"

namespace example {

using namespace metagen::host;

std::string describe(std::int32_t number);
/// Six significant digits.
std::string describe(float number);
std::string describe(const Handler& handler);
std::string describe(const DefaultValue& value);
std::string describe(const std::vector<std::string>& names);
std::string describe(const Scaling::Condition& condition);
std::string describe(const Scaling& scaling);

}  // namespace example

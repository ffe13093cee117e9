// Documents for the tests of combine, written as JSON by hand.
#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "support/json.h"

namespace metagen {

inline json::Object objectOf(std::string_view text) {
    return json::asObject(json::parse(text).value());
}

inline const std::string noObjectMessage =
    "\"type mismatch! call is<type>() before get<type>()\" && is<object>()";
inline const std::string noTextMessage =
    "\"type mismatch! call is<type>() before get<type>()\" && is<std::string>()";

/// The text of the exception that the function throws; empty when it throws none.
template <typename Function>
std::string messageOf(const Function& function) try {
    function();
    return "";
} catch (const std::exception& exception) {
    return exception.what();
}

}  // namespace metagen

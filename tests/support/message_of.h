// The texts of exceptions, for tests of what users see of them.
#pragma once

#include <exception>
#include <string>
#include <type_traits>
#include <typeinfo>

namespace metagen {

inline const std::string noObjectMessage =
    "\"type mismatch! call is<type>() before get<type>()\" && is<object>()";
inline const std::string noTextMessage =
    "\"type mismatch! call is<type>() before get<type>()\" && is<std::string>()";
inline const std::string missingMessage = "invalid map<K, T> key";

/// The text of the exception that the call throws, which is exactly an Exception; by default any.
template <typename Exception = std::exception, typename Call>
std::string messageOf(const Call& call) {
    try {
        call();
    } catch (const std::exception& exception) {
        const bool isAny = std::is_same_v<Exception, std::exception>;
        const bool isExpected = isAny || typeid(exception) == typeid(Exception);
        return isExpected ? exception.what() : "another exception";
    }
    return "nothing thrown";
}

}  // namespace metagen

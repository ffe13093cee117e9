// Names and values of documents as messages show them: in double quotes, on one line, not too long,
// valid UTF-8 whatever bytes they have.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "json/value.h"

namespace metagen::lint {

/// The text with its line ends and other control characters as JSON escapes them, and with a
/// replacement character for each byte that is no UTF-8.
std::string printable(std::string_view text);

/// The text in double quotes; a long one is cut.
std::string inQuotes(std::string_view text);

/// A text in double quotes, any other value as what it is: 7, true, null, an object.
std::string described(const json::Value& value);

/// The ASCII letter in lower case; any other byte as it is.
constexpr char lowerCased(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// Two words of an owner, such as a plugin and its parameter, as messages begin with them.
std::string ownerName(std::string_view plugin, std::string_view parameter);

/// ` (did you mean "name"?)`, or nothing when there is no name.
std::string didYouMean(std::string_view name);

/// The same for a word that is none of a few known ones; when none of them is near, all of them.
std::string didYouMean(std::string_view word, std::span<const std::string_view> known);

}  // namespace metagen::lint

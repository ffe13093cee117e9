// The keys that the tool knows at each level of a document, and the kinds of value that it takes.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "json/document.h"
#include "lint/finding.h"

namespace metagen::lint {

struct KnownKey {
    std::string_view name;
    std::string_view kinds;  ///< in words: "a text", "a text or null"
    bool (*fits)(const json::Value& value);
};

/// Of one level: its keys, and what a message calls it.
struct Level {
    std::string_view name;  ///< "a parameter"
    std::span<const KnownKey> keys;
};

namespace level {
extern const Level document;
extern const Level plugin;
extern const Level entry;  ///< a parameter or user data
extern const Level handlerInfo;
extern const Level scaling;
extern const Level condition;
}  // namespace level

/// The key of that name, or null.
const KnownKey* findKey(const Level& level, std::string_view name);

/// Adds the keys of an object that its level doesn't know.
void addUnknownKeys(const json::Document& document, json::Object object, const Level& level,
                    Findings& findings);

/// `"unit" is a text; it must be a number`, say, and whether quotes are all that is wrong.
std::string wrongKindText(std::string_view key, const json::Value& value, std::string_view kinds);

/// What kind of value that is, in words.
std::string_view kindInWords(const json::Value& value);

}  // namespace metagen::lint

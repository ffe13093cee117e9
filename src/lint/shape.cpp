#include "lint/shape.h"

#include <algorithm>
#include <array>

#include "lint/nearest_name.h"
#include "lint/wording.h"
#include "support/numbers.h"

namespace metagen::lint {

namespace {

template <json::Kind... kinds>
bool isOneOf(const json::Value& value) {
    return ((value.kind() == kinds) || ...);
}

constexpr auto isText = isOneOf<json::Kind::text>;
constexpr auto isNumber = isOneOf<json::Kind::number>;
constexpr auto isObject = isOneOf<json::Kind::object>;
constexpr auto isBoolean = isOneOf<json::Kind::boolean>;
constexpr auto isArray = isOneOf<json::Kind::array>;
constexpr auto isTextOrNull = isOneOf<json::Kind::text, json::Kind::null>;

constexpr std::array documentKeys = {KnownKey{"$schema", "a text", isText},
                                     KnownKey{"version", "a number", isNumber},
                                     KnownKey{"plugins", "an object", isObject}};

constexpr std::array pluginKeys = {KnownKey{"type", "a text or null", isTextOrNull},
                                   KnownKey{"params", "an object", isObject},
                                   KnownKey{"userData", "an object", isObject}};

constexpr std::array entryKeys = {KnownKey{"type", "a text", isText},
                                  KnownKey{"listType", "a text", isText},
                                  KnownKey{"defaultValue", "a text", isText},
                                  KnownKey{"handler", "a text", isText},
                                  KnownKey{"handlerinfo", "an object", isObject},
                                  KnownKey{"scaling", "an object", isObject}};

constexpr std::array handlerInfoKeys = {KnownKey{"loadMode", "a text", isText}};

constexpr std::array scalingKeys = {
    KnownKey{"unit", "a number", isNumber}, KnownKey{"power", "a number", isNumber},
    KnownKey{"inverse", "true or false", isBoolean}, KnownKey{"conditions", "an array", isArray}};

constexpr std::array conditionKeys = {KnownKey{"op", "a number", isNumber},
                                      KnownKey{"ref", "a text", isText},
                                      KnownKey{"value", "a number", isNumber}};

/// For a text where its content belongs, and the other way round.
std::string_view wordOnQuotes(const json::Value& value, std::string_view kinds) {
    if (kinds == "a text" && (value.number() || value.boolean())) return ", in double quotes";
    const auto text = value.text();
    if (!text) return "";
    const bool holdsNumber = !text->empty() && restAfterDouble(*text).empty();
    const bool holdsBoolean = *text == "true" || *text == "false";
    const bool fits =
        (holdsNumber && kinds == "a number") || (holdsBoolean && kinds == "true or false");
    return fits ? ", without quotes" : "";
}

/// The key of which the name is the beginning; empty when there is none.
std::string_view longerKey(const Level& level, std::string_view name) {
    constexpr std::size_t shortest = 3;
    const auto begins = [name](const KnownKey& key) { return key.name.starts_with(name); };
    const auto key = std::ranges::find_if(level.keys, begins);
    return name.size() < shortest || key == level.keys.end() ? std::string_view() : key->name;
}

}  // namespace

namespace level {
const Level document = {"the document", documentKeys};
const Level plugin = {"a plugin", pluginKeys};
const Level entry = {"a parameter", entryKeys};
const Level handlerInfo = {"handlerinfo", handlerInfoKeys};
const Level scaling = {"a scaling", scalingKeys};
const Level condition = {"a condition", conditionKeys};
}  // namespace level

const KnownKey* findKey(const Level& level, std::string_view name) {
    const auto key = std::ranges::find(level.keys, name, &KnownKey::name);
    return key == level.keys.end() ? nullptr : &*key;
}

void addUnknownKeys(const json::Document& document, json::Object object, const Level& level,
                    Findings& findings) {
    for (const json::Member& member : object) {
        if (findKey(level, member.key) != nullptr) continue;
        NearestName finder;
        finder.begin(member.key);
        for (const KnownKey& key : level.keys) finder.consider(key.name);
        const std::string_view nearest =
            finder.nearest().empty() ? longerKey(level, member.key) : finder.nearest();
        findings.add(rule::unknownKey, document.offsetOf(member.key),
                     (inQuotes(member.key) + " is no key of ").append(level.name) +
                         didYouMean(nearest) + ", so nothing reads it");
    }
}

std::string_view kindInWords(const json::Value& value) {
    constexpr std::array<std::string_view, 6> words = {"null",   "true or false", "a number",
                                                       "a text", "an array",      "an object"};
    return words[static_cast<std::size_t>(value.kind())];
}

std::string wrongKindText(std::string_view key, const json::Value& value, std::string_view kinds) {
    return (inQuotes(key) + " is ").append(kindInWords(value)) + "; it must be " +
           std::string(kinds).append(wordOnQuotes(value, kinds));
}

}  // namespace metagen::lint

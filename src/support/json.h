// The one module that knows the JSON library: parsing, member look-up, the errors of a wrong
// kind, and the compact text. Everything else speaks JSON through it.
//
// Habits of the library that the tool's outputs depend on: text after the first value is ignored;
// of equal members the last one wins; a byte-order mark is an error; arrays may nest 100 deep; the
// compact text escapes "/" and writes a number that is not integral (or is 2^53 and beyond) with
// 17 significant digits; objects iterate in ascending byte order of their keys.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <picojson.h>

namespace metagen::json {

using Value = picojson::value;
using Object = picojson::object;
using Array = picojson::array;
using Null = picojson::null;

/// The deepest nesting of objects and arrays together that a document may have, so that no
/// document can exhaust the stack.
inline constexpr std::size_t maximumDepth = 1000;

/// Parses the first JSON value of the text. Nothing when it has a syntax error, nests deeper than
/// `maximumDepth`, or holds a number beyond the range of a double.
std::optional<Value> parse(std::string_view text);

/// The same; of a refused text, also the line of the error, counting from 1.
std::optional<Value> parse(std::string_view text, int& errorLine);

/// Gives a document a place of its own to the end of the process, and never takes it apart: freeing
/// a large tree node by node would cost a good part of a run that is about to end anyway.
Value& keepToProcessEnd(Value document);

/// The member's value, or null when the object lacks it. The pointer lives as long as the object.
const Value* find(const Object& object, std::string_view key);

/// The member's value. Throws std::out_of_range "invalid map<K, T> key" when the object lacks it.
const Value& at(const Object& object, std::string_view key);

/// The value as an object or a text. Any other kind throws std::runtime_error with the library's
/// text: "type mismatch! call is<type>() before get<type>()" && is<object>() (or
/// is<std::string>()), the double quotes included.
const Object& asObject(const Value& value);
Object& asObject(Value& value);
const std::string& asString(const Value& value);

/// The library's compact serialisation: no white space, texts quoted and escaped.
std::string compactText(const Value& value);
void appendCompactText(std::string& out, const Value& value);
void appendCompactText(std::string& out, std::string_view text);

}  // namespace metagen::json

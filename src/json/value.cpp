#include "json/value.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include <picojson.h>

#include "support/escapes.h"

namespace metagen::json {

namespace {

/// Throws the library's own error for a value that is not of that kind.
template <typename LibraryKind>
void throwMismatch() {
    static_cast<void>(picojson::value().get<LibraryKind>());
}

/// In runs of bytes that the library would not escape.
void appendText(std::string& out, std::string_view text) {
    picojson::serialize_str_char<std::back_insert_iterator<std::string>> appendByte = {
        std::back_inserter(out)};
    out += '"';
    const char* rest = text.data();
    const char* const end = rest + text.size();
    while (true) {
        const char* const special = findSpecial<'"', '\\', '/', '\x7f'>(rest, end);
        out.append(rest, special);
        if (special == end) break;
        appendByte(*special);
        rest = special + 1;
    }
    out += '"';
}

void appendArray(std::string& out, Array elements) {
    char separator = '[';
    for (const Value& element : elements) {
        out += separator;
        appendCompactText(out, element);
        separator = ',';
    }
    out += elements.empty() ? "[]" : "]";
}

void appendObject(std::string& out, Object members) {
    char separator = '{';
    for (const auto& [key, value] : members) {
        out += separator;
        appendText(out, key);
        out += ':';
        appendCompactText(out, value);
        separator = ',';
    }
    out += members.empty() ? "{}" : "}";
}

bool equalMembers(const Member& left, const Member& right) {
    return left.key == right.key && left.value == right.value;
}

}  // namespace

bool operator==(const Value& left, const Value& right) {
    if (left.kind() != right.kind()) return false;
    switch (left.kind()) {
        case Kind::null: return true;
        case Kind::boolean: return left.boolean() == right.boolean();
        case Kind::number: return left.number() == right.number();
        case Kind::text: return left.text() == right.text();
        case Kind::array: return std::ranges::equal(*left.array(), *right.array());
        case Kind::object: break;
    }
    return std::ranges::equal(*left.object(), *right.object(), equalMembers);
}

const Value* find(Object object, std::string_view key) {
    // Most objects have few members, which are told apart by the length of their keys.
    constexpr std::size_t fewMembers = 8;
    const auto member = object.size() <= fewMembers
                            ? std::ranges::find(object, key, &Member::key)
                            : std::ranges::lower_bound(object, key, {}, &Member::key);
    return member == object.end() || member->key != key ? nullptr : &member->value;
}

const Value& at(Object object, std::string_view key) {
    const Value* value = find(object, key);
    if (value == nullptr) throwInvalidMapKey();
    return *value;
}

void throwInvalidMapKey() { throw std::out_of_range("invalid map<K, T> key"); }

Object asObject(const Value& value) {
    const std::optional<Object> members = value.object();
    if (!members) throwMismatch<picojson::object>();
    return *members;
}

std::string_view asText(const Value& value) {
    const std::optional<std::string_view> text = value.text();
    if (!text) throwMismatch<std::string>();
    return *text;
}

std::string compactText(const Value& value) {
    std::string text;
    appendCompactText(text, value);
    return text;
}

void appendCompactText(std::string& out, const Value& value) {
    switch (value.kind()) {
        case Kind::null: out += "null"; return;
        case Kind::boolean: out += *value.boolean() ? "true" : "false"; return;
        case Kind::number: out += picojson::value(*value.number()).serialize(); return;
        case Kind::text: return appendText(out, *value.text());
        case Kind::array: return appendArray(out, *value.array());
        case Kind::object: return appendObject(out, *value.object());
    }
}

}  // namespace metagen::json

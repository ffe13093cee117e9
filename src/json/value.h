// JSON values as small immutable nodes over the bytes of a document: what a node refers to belongs
// to its document, or to the arena of whoever made it, and must outlive it.
//
// Habits of the JSON library that the tool's outputs depend on: text after the first value is
// ignored; of equal members the last one wins; a byte-order mark is an error; arrays may nest 100
// deep; the compact text escapes "/" and writes a number that is not integral (or is 2^53 and
// beyond) with 17 significant digits; objects have their members in ascending byte order.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace metagen::json {

class Value;
struct Member;

using Array = std::span<const Value>;

/// In ascending byte order of the keys, each key once.
using Object = std::span<const Member>;

enum class Kind : std::uint8_t { null, boolean, number, text, array, object };

/// The largest size of anything that a value can hold, in bytes or elements.
inline constexpr std::size_t maximumSize = (std::size_t{1} << 29U) - 1;

class Value {
public:
    Value() noexcept : Value(Kind::null, 0) {}
    /// Of a bool alone, not of what converts to one, such as a literal text.
    template <std::same_as<bool> Boolean>
    explicit Value(Boolean boolean) noexcept : Value(Kind::boolean, 0) {
        content.boolean = boolean;
    }
    explicit Value(double number) noexcept : Value(Kind::number, 0) { content.number = number; }
    /// Of at most `maximumSize` bytes, elements or members.
    explicit Value(std::string_view text) noexcept : Value(Kind::text, text.size()) {
        content.text = text.data();
    }
    explicit Value(Array elements) noexcept : Value(Kind::array, elements.size()) {
        content.elements = elements.data();
    }
    explicit Value(Object members) noexcept;

    [[nodiscard]] Kind kind() const { return static_cast<Kind>(kindNumber); }
    [[nodiscard]] bool isNull() const { return kind() == Kind::null; }
    [[nodiscard]] bool isObject() const { return kind() == Kind::object; }

    // What the value holds; nothing when it is of another kind.
    [[nodiscard]] std::optional<bool> boolean() const {
        return kind() == Kind::boolean ? std::optional(content.boolean) : std::nullopt;
    }
    [[nodiscard]] std::optional<double> number() const {
        return kind() == Kind::number ? std::optional(content.number) : std::nullopt;
    }
    [[nodiscard]] std::optional<std::string_view> text() const {
        if (kind() != Kind::text) return std::nullopt;
        return std::string_view(content.text, size);
    }
    [[nodiscard]] std::optional<Array> array() const {
        if (kind() != Kind::array) return std::nullopt;
        return Array(content.elements, size);
    }
    [[nodiscard]] std::optional<Object> object() const;

    /// Where the value begins in its document, in bytes; 0 for a value that was not parsed.
    [[nodiscard]] std::uint32_t offset() const { return begin; }
    [[nodiscard]] Value withOffset(std::uint32_t offset) const {
        Value value = *this;
        value.begin = offset;
        return value;
    }

private:
    Value(Kind kind, std::size_t count) noexcept
        : size(static_cast<std::uint32_t>(count) & maximumSize),
          kindNumber(static_cast<std::uint32_t>(kind) & 7U) {}

    union {
        bool boolean;
        double number = 0;
        const char* text;
        const Value* elements;
        const Member* members;
    } content;
    std::uint32_t begin = 0;
    std::uint32_t size : 29;
    std::uint32_t kindNumber : 3;
};

struct Member {
    std::string_view key;
    Value value;
};

inline Value::Value(Object members) noexcept : Value(Kind::object, members.size()) {
    content.members = members.data();
}

inline std::optional<Object> Value::object() const {
    if (kind() != Kind::object) return std::nullopt;
    return Object(content.members, size);
}

/// Deep equality: numbers compare as doubles, elements in order, members by key.
bool operator==(const Value& left, const Value& right);

/// The member's value, or null when the object lacks it.
const Value* find(Object object, std::string_view key);

/// The member's value. Throws `throwInvalidMapKey` when the object lacks it.
const Value& at(Object object, std::string_view key);

/// Throws std::out_of_range "invalid map<K, T> key": something is missing that must be there. The
/// text is the tool's own, since C++ libraries word it differently.
[[noreturn]] void throwInvalidMapKey();

/// The value as an object or a text. Any other kind throws std::runtime_error with the library's
/// text: "type mismatch! call is<type>() before get<type>()" && is<object>() (or
/// is<std::string>()), the double quotes included.
Object asObject(const Value& value);
std::string_view asText(const Value& value);

/// The library's compact serialisation: no white space, texts quoted and escaped.
std::string compactText(const Value& value);
void appendCompactText(std::string& out, const Value& value);

}  // namespace metagen::json

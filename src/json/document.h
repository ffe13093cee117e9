// A JSON document: its text, and the tree of values over it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "json/value.h"
#include "support/memory.h"

namespace metagen::json {

/// The deepest nesting of objects and arrays together that a document may have, so that no
/// document can exhaust the stack.
inline constexpr std::size_t maximumDepth = 1000;

/// A key that an object has twice: only the later one's value counts.
struct RepeatedKey {
    std::string_view earlier;
    std::string_view later;
};

/// Owns the text that it was made of; its values refer to that, so it stays where it is.
class Document {
public:
    /// Parses the first value of the text. A document is not valid when that has a syntax error,
    /// nests deeper than `maximumDepth`, or holds a number beyond the range of a double; nor when
    /// the text is longer than `maximumSize`.
    explicit Document(std::string text);

    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    [[nodiscard]] bool isValid() const { return lineOfError == 0; }

    /// The line on which a document that is not valid shows it, counting from 1.
    [[nodiscard]] int errorLine() const { return lineOfError; }

    /// How many bytes were read: until then, or to the end of the value.
    [[nodiscard]] std::uint32_t sizeRead() const { return bytesRead; }

    /// Null when the document is not valid.
    [[nodiscard]] const Value& root() const { return rootValue; }

    [[nodiscard]] const std::string& text() const { return ownText; }

    /// The repeated keys of all objects, in no order; a key that stands three times is there twice.
    [[nodiscard]] std::span<const RepeatedKey> repeatedKeys() const { return repeated; }

    /// Where one of the document's keys begins, in bytes: at its opening quote.
    [[nodiscard]] std::uint32_t offsetOf(std::string_view key) const;

private:
    std::string ownText;
    Arena arena;  ///< of the nodes, and of the texts that have escapes
    Value rootValue;
    std::vector<RepeatedKey> repeated;
    std::uint32_t bytesRead = 0;
    int lineOfError = 0;
};

/// The document's value as an object. When it is none, the message on standard error ends the
/// process with status 1.
Object objectOrExit(const Value& value, std::string_view message);

/// A place as editors count it: from 1, the column in characters.
struct Place {
    std::size_t line = 1;
    std::size_t column = 1;

    bool operator==(const Place&) const = default;
};

/// Finds places in a document. Asked in the order of the document, all of them together cost one
/// walk along its text.
class PlaceFinder {
public:
    /// Borrows the document.
    explicit PlaceFinder(const Document& searched) : document(searched) {}

    /// Where a value or a key of the document begins.
    Place placeOf(const Value& value) { return placeAt(value.offset()); }
    Place placeOf(std::string_view key) { return placeAt(document.offsetOf(key)); }

    /// The place of a byte of the document, or of its end.
    Place placeAt(std::size_t offset);

private:
    const Document& document;
    std::size_t reached = 0;
    Place place;  ///< of the byte at `reached`
};

}  // namespace metagen::json

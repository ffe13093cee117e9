// Reads the values of a binary table one after the other, and never beyond its end.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace host {

/// The bytes are no table: they end too early, go on after its end, or hold an unknown code.
class BadTable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Every read throws BadTable where the bytes end too early.
class TableReader {
public:
    /// The bytes must outlive the reader.
    explicit TableReader(std::string_view table) : bytes(table) {}

    /// Requires the four characters that a table begins with.
    void expectTag(std::string_view tag);
    /// Requires that nothing is left.
    void expectEnd() const;

    std::uint8_t readByte();
    std::uint32_t readU32();
    std::int32_t readI32();
    float readF32();
    std::string readText();
    /// The number of things that follow, which take at least that many bytes each.
    std::uint32_t readCount(std::size_t smallestSize);

    [[noreturn]] void fail(const std::string& problem) const;

private:
    std::string_view take(std::size_t size);

    std::string_view bytes;
    std::size_t position = 0;
};

}  // namespace host

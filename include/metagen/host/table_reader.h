// Reads the values of a binary table one after the other, and never beyond its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace metagen::host {

/// The bytes are no table: they end too early, go on after its end, or hold what no table has.
class BadTable : public std::runtime_error {
public:
    BadTable(std::size_t place, const std::string& problem)
        : std::runtime_error("at byte " + std::to_string(place) + ": the table " + problem),
          byte(place) {}

    std::size_t byte;  ///< where the value begins that is wrong, counted from 0
};

/// Every read throws BadTable where the bytes end too early.
class TableReader {
public:
    /// The bytes must outlive the reader.
    explicit TableReader(std::string_view table) : bytes(table) {}

    /// Requires the four characters that a table begins with.
    void expectTag(std::string_view tag) {
        if (bytes.substr(0, tag.size()) != tag) {
            throw BadTable(0, "is no " + std::string(tag) + " table");
        }
        position = tag.size();
    }

    /// Requires that nothing is left.
    void expectEnd() const {
        if (position != bytes.size()) throw BadTable(position, "goes on after its end");
    }

    std::uint8_t readByte() { return static_cast<std::uint8_t>(take(1)[0]); }

    /// A std::uint32_t, std::int32_t or float.
    template <typename Number>
    Number read() {
        static_assert(sizeof(Number) == sizeof(std::uint32_t));
        std::uint32_t bits = 0;
        for (const char byte : take(sizeof bits)) {
            bits = bits >> 8U | std::uint32_t{static_cast<std::uint8_t>(byte)} << 24U;
        }
        Number number;
        std::memcpy(&number, &bits, sizeof number);
        return number;
    }

    /// The number of things that follow, which take at least that many bytes each.
    std::uint32_t readCount(std::size_t smallestSize) {
        const auto count = read<std::uint32_t>();
        require(count <= left() / smallestSize, "ends too early");
        return count;
    }

    /// That many, which readCount has allowed for.
    template <typename Number>
    std::vector<Number> readNumbers(std::uint32_t count) {
        std::vector<Number> numbers(count);
        for (Number& number : numbers) number = read<Number>();
        return numbers;
    }

    std::string readText() {
        const std::uint32_t size = readCount(1);
        position += size;
        return std::string(bytes.substr(position - size, size));
    }

    /// Throws unless the value that was read last is as it should be.
    void require(bool isRight, const char* problem) const {
        if (!isRight) throw BadTable(latest, problem);
    }

private:
    std::size_t left() const { return bytes.size() - position; }

    std::string_view take(std::size_t size) {
        latest = position;
        require(size <= left(), "ends too early");
        position += size;
        return bytes.substr(latest, size);
    }

    std::string_view bytes;
    std::size_t position = 0;
    std::size_t latest = 0;  ///< where the value that was read last begins
};

}  // namespace metagen::host

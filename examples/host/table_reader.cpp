#include "table_reader.h"

#include <bit>

namespace host {

void TableReader::expectTag(std::string_view tag) {
    if (bytes.substr(0, tag.size()) != tag) fail("is no " + std::string(tag) + " table");
    position = tag.size();
}

void TableReader::expectEnd() const {
    if (position != bytes.size()) fail("goes on after its end");
}

std::uint8_t TableReader::readByte() { return static_cast<std::uint8_t>(take(1)[0]); }

std::uint32_t TableReader::readU32() {
    std::uint32_t number = 0;
    for (const char byte : take(4)) {
        number = number >> 8U | std::uint32_t{static_cast<std::uint8_t>(byte)} << 24U;
    }
    return number;
}

std::int32_t TableReader::readI32() { return static_cast<std::int32_t>(readU32()); }

float TableReader::readF32() { return std::bit_cast<float>(readU32()); }

std::string TableReader::readText() { return std::string(take(readU32())); }

std::uint32_t TableReader::readCount(std::size_t smallestSize) {
    const std::uint32_t count = readU32();
    if (count > (bytes.size() - position) / smallestSize) fail("ends too early");
    return count;
}

void TableReader::fail(const std::string& problem) const {
    throw BadTable("at byte " + std::to_string(position) + ": the table " + problem);
}

std::string_view TableReader::take(std::size_t size) {
    if (size > bytes.size() - position) fail("ends too early");
    position += size;
    return bytes.substr(position - size, size);
}

}  // namespace host

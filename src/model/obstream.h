// The binary tables of the generators: primitives without alignment, padding or separators, every
// number little-endian whatever the machine. Hosts load the files byte by byte as they stand here.
#pragma once

#include <bit>
#include <cstdint>
#include <fstream>
#include <ios>
#include <span>
#include <sstream>
#include <string_view>

namespace Qyrakit {

/// A stream that binary values are written to, opened as the stream itself is, with
/// std::ios::binary. No write is checked: a full device leaves a short file.
template <typename Stream>
class obstream : public Stream {  // NOLINT(readability-identifier-naming): named like a stream
public:
    using Stream::Stream;

    /// Four characters in reading order.
    void writeTag(const char (&tag)[5]) { this->write(tag, 4); }

    void writeU32(std::uint32_t number) {
        for (unsigned index = 0; index < 4; ++index) writeByte((number >> (8U * index)) & 0xFFU);
    }

    void writeI32(std::int32_t number) { writeU32(static_cast<std::uint32_t>(number)); }

    /// IEEE 754 binary32.
    void writeF32(float number) { writeU32(std::bit_cast<std::uint32_t>(number)); }

    /// The number of elements that follow, as a u32.
    void writeCount(std::size_t count) { writeU32(static_cast<std::uint32_t>(count)); }

    /// The length in bytes as a u32, then the bytes; no NUL, no conversion.
    void writeText(std::string_view text) {
        writeCount(text.size());
        this->rdbuf()->sputn(text.data(), static_cast<std::streamsize>(text.size()));
    }

    /// Straight into the stream's buffer: most values are four bytes, for which a formatted or
    /// unformatted write of the stream's own costs more than the rest of their writing.
    void writeByte(std::uint32_t byte) { this->rdbuf()->sputc(static_cast<char>(byte)); }

    /// The elements back to back, without a count.
    void writeBytes(std::span<const float> numbers) {
        for (const float number : numbers) writeF32(number);
    }
    void writeBytes(std::span<const std::int32_t> numbers) {
        for (const std::int32_t number : numbers) writeI32(number);
    }
};

}  // namespace Qyrakit

namespace metagen {

/// The `.bin` file of a generator: BinaryFile(path, std::ios::binary) creates or truncates it.
using BinaryFile = Qyrakit::obstream<std::ofstream>;

/// Records that are made before the file may get them. Its view() gives their bytes.
using BinaryBuffer = Qyrakit::obstream<std::ostringstream>;

}  // namespace metagen

#include "model/obstream.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>
#include <type_traits>

#include "model/binary_bytes.h"

namespace metagen {
namespace {

using Stream = Qyrakit::obstream<std::ostringstream>;

static_assert(std::is_base_of_v<std::ofstream, BinaryFile>);
static_assert(sizeof(BinaryFile) == sizeof(std::ofstream));

/// The bytes that the writes give, in hexadecimal.
template <typename Writes>
std::string bytesOf(const Writes& writes) {
    Stream stream;
    writes(stream);
    std::string text;
    for (const char byte : stream.str()) {
        constexpr char digits[] = "0123456789abcdef";
        const auto code = static_cast<unsigned char>(byte);
        if (!text.empty()) text += ' ';
        text += digits[code / 16];
        text += digits[code % 16];
    }
    return text;
}

TEST(Obstream, ATagIsItsFourCharacters) {
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeTag("HDLR"); }), "48 44 4c 52");
}

TEST(Obstream, IntegersAreLittleEndian) {
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeU32(0x04030201U); }), "01 02 03 04");
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeU32(0xfffefdfcU); }), "fc fd fe ff");
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeCount(258); }), "02 01 00 00");
}

TEST(Obstream, SignedIntegersAreTwosComplement) {
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeI32(-1); }), "ff ff ff ff");
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeI32(std::numeric_limits<int>::min()); }),
              "00 00 00 80");
}

TEST(Obstream, FloatsAreBinary32) {
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeF32(1.0F); }), "00 00 80 3f");
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeF32(-0.1F); }), "cd cc cc bd");
}

TEST(Obstream, ATextIsItsLengthAndItsBytes) {
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeText(""); }), "00 00 00 00");
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeText("ab"); }), "02 00 00 00 61 62");
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeText(std::string_view("\0\n\xff", 3)); }),
              "03 00 00 00 00 0a ff");
}

TEST(Obstream, AByteIsItself) {
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeByte(1); }), "01");
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeByte(255); }), "ff");
}

TEST(Obstream, FixedArraysHaveNoCount) {
    EXPECT_EQ(bytesOf([](Stream& out) {
                  out.writeBytes(std::array{1.0F, -2.0F});
              }),
              "00 00 80 3f 00 00 00 c0");
    EXPECT_EQ(bytesOf([](Stream& out) {
                  out.writeBytes(std::array{1, -2});
              }),
              "01 00 00 00 fe ff ff ff");
    EXPECT_EQ(bytesOf([](Stream& out) { out.writeBytes(std::span<const float>()); }), "");
}

TEST(Obstream, WritesFollowEachOtherWithoutPadding) {
    EXPECT_EQ(bytesOf([](Stream& out) {
                  out.writeByte(7);
                  out.writeText("a");
                  out.writeU32(2);
              }),
              "07 01 00 00 00 61 02 00 00 00");
}

TEST(BinaryFile, ReplacesAFileAndConvertsNoLineEnds) {
    const std::string path = pathOfThisTest();
    std::ofstream(path) << "something longer than what follows";
    BinaryFile(path, std::ios::binary).writeText("\n\r\n");
    EXPECT_EQ(takeBytes(path), bytes("\3\0\0\0\n\r\n"));
}

TEST(BinaryFile, AFileInNoFolderFailsToOpen) {
    EXPECT_FALSE(BinaryFile("no/such/folder.bin", std::ios::binary).is_open());
}

}  // namespace
}  // namespace metagen

#include "model/binary_table.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>

namespace metagen {
namespace {

using namespace std::string_view_literals;

/// What the call appends to a table that holds a byte already.
template <typename Call>
std::string appended(const Call& call) {
    std::string table = "-";
    call(table);
    EXPECT_EQ(table.substr(0, 1), "-");
    return table.substr(1);
}

std::string u32(std::uint32_t number) {
    return appended([=](std::string& table) { appendU32(table, number); });
}

std::string i32(std::int32_t number) {
    return appended([=](std::string& table) { appendI32(table, number); });
}

std::string f32(float number) {
    return appended([=](std::string& table) { appendF32(table, number); });
}

std::string text(std::string_view bytes) {
    return appended([=](std::string& table) { appendText(table, bytes); });
}

template <typename Number>
std::string numbers(std::span<const Number> elements) {
    return appended([=](std::string& table) { appendNumbers(table, elements); });
}

TEST(BinaryTable, IntegersAreLittleEndian) {
    EXPECT_EQ(u32(0x04030201U), "\x01\x02\x03\x04");
    EXPECT_EQ(u32(0xfffefdfcU), "\xfc\xfd\xfe\xff");
    EXPECT_EQ(appended([](std::string& table) { appendCount(table, 258); }), "\x02\x01\0\0"sv);
}

TEST(BinaryTable, SignedIntegersAreTwosComplement) {
    EXPECT_EQ(i32(-1), "\xff\xff\xff\xff");
    EXPECT_EQ(i32(INT_MIN), "\0\0\0\x80"sv);
}

TEST(BinaryTable, FloatsAreBinary32) {
    EXPECT_EQ(f32(1.0F), "\0\0\x80\x3f"sv);
    EXPECT_EQ(f32(-0.1F), "\xcd\xcc\xcc\xbd");
}

TEST(BinaryTable, ATextIsItsLengthAndItsBytes) {
    EXPECT_EQ(text(""), "\0\0\0\0"sv);
    EXPECT_EQ(text("ab"), "\x02\0\0\0ab"sv);
    EXPECT_EQ(text("\0\n\xff"sv), "\x03\0\0\0\0\n\xff"sv);
}

TEST(BinaryTable, CountsAndLengthsHave32Bits) {
    EXPECT_EQ(appended([](std::string& table) { appendCount(table, 0xfffefdfcU); }),
              "\xfc\xfd\xfe\xff");
    const std::string record = text(std::string(0x1'0002, 'a'));
    EXPECT_EQ(record.substr(0, 5), "\x02\0\x01\0a"sv);
    EXPECT_EQ(record.size(), 0x1'0006U);
}

TEST(BinaryTable, NumbersHaveNoCount) {
    EXPECT_EQ(numbers<float>(std::array{1.0F, -2.0F}), "\0\0\x80\x3f\0\0\0\xc0"sv);
    EXPECT_EQ(numbers<std::int32_t>(std::array{1, -2}), "\x01\0\0\0\xfe\xff\xff\xff"sv);
    EXPECT_EQ(numbers<float>({}), "");
}

TEST(BinaryTable, NothingStandsBetweenValues) {
    std::string table = "\7";
    appendText(table, "a");
    appendU32(table, 2);
    EXPECT_EQ(table, "\7\1\0\0\0a\2\0\0\0"sv);
}

}  // namespace
}  // namespace metagen

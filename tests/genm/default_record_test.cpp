// Every type with good, bad, absent and empty defaults, in both tables.
#include "genm/default_record.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <ostream>
#include <stdexcept>

#include "genm/table_bytes.h"
#include "model/reading.h"
#include "support/exit_status.h"

namespace metagen {
namespace {

const std::string d3 = "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE";
const std::string d4 = "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE";
const std::string d9 = "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_SINGLE";
const std::string d12 = "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE";
const std::string lf = "1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST";
const std::string li = "1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST";
const std::string ls = "1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST";
const std::string l3 = "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST";
const std::string l4 = "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_LIST";
const std::string l9 = "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_LIST";
const std::string l12 = "1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_LIST";
const std::string emptyLiteral = "\"\"";

/// A default in the source text, with the value arrays, and in the binary table.
struct Written {
    std::string source;
    std::string arrays;
    std::string record;

    bool operator==(const Written&) const = default;
};

void PrintTo(const Written& written, std::ostream* out) {
    *out << written.source << '\n' << written.arrays << testing::PrintToString(written.record);
}

Written written(const DefaultRecord& record) {
    Written result;
    ValueArrays groups;
    appendDefault(result.source, record, groups);
    appendDefinitions(result.arrays, groups);
    appendDefaultRecord(result.record, record);
    return result;
}

DefaultValues buffer;  ///< of the default at hand

Written typed(std::int32_t code, std::string_view text) {
    return written(readTypedDefault(code, text, buffer));
}

Written absent(std::int32_t code) { return written(readTypedDefault(code, std::nullopt, buffer)); }

std::string floats(std::initializer_list<float> values) {
    std::string bytes = u32(static_cast<std::uint32_t>(values.size()));
    for (const float value : values) bytes += f32(value);
    return bytes;
}

std::string integers(std::initializer_list<std::int32_t> values) {
    std::string bytes = u32(static_cast<std::uint32_t>(values.size()));
    for (const std::int32_t value : values) bytes += i32(value);
    return bytes;
}

// The records, by kind.
std::string integer(std::int32_t value) { return u32(0) + i32(value); }
std::string single(float value) { return u32(1) + f32(value); }
std::string string(const std::string& value) { return u32(2) + text(value); }
std::string descriptorOnly(std::uint32_t descriptor) { return u32(3) + u32(descriptor); }
std::string integerArray(std::uint32_t descriptor, std::initializer_list<std::int32_t> values) {
    return u32(4) + u32(descriptor) + integers(values);
}
std::string floatArray(std::uint32_t descriptor, std::initializer_list<float> values) {
    return u32(5) + u32(descriptor) + floats(values);
}

/// The text of the standard exception that a default raises.
template <typename Exception>
std::string errorOf(std::int32_t code, const std::string& text) {
    return messageOf<Exception>([&] { readTypedDefault(code, text, buffer); });
}

TEST(DefaultRecordBytes, AreThoseOfEachKind) {
    EXPECT_EQ(typed(0, "-1").record, std::string("\0\0\0\0\xFF\xFF\xFF\xFF", 8));
    EXPECT_EQ(typed(1, "1").record, std::string("\x01\0\0\0\0\0\x80\x3F", 8));
    EXPECT_EQ(typed(9, "ab").record, std::string("\x02\0\0\0\x02\0\0\0ab", 10));
    EXPECT_EQ(typed(12, "").record, std::string("\x03\0\0\0\x0C\x02\0\0", 8));
    EXPECT_EQ(typed(100, "List(2)").record,
              std::string("\x04\0\0\0\x0A\x02\0\0\x01\0\0\0\x02\0\0\0", 16));
    EXPECT_EQ(typed(101, "List(1)").record,
              std::string("\x05\0\0\0\x09\x02\0\0\x01\0\0\0\0\0\x80\x3F", 16));
}

TEST(TypedDefault, IntegersAndBools) {
    for (const std::int32_t code : {0, 3}) {
        EXPECT_EQ(typed(code, "7"), (Written{"7", "", integer(7)}));
        EXPECT_EQ(typed(code, "-3"), (Written{"-3", "", integer(-3)}));
        EXPECT_EQ(typed(code, " 12abc"), (Written{"12", "", integer(12)}));
        EXPECT_EQ(typed(code, "-2147483648"), (Written{"INT_MIN", "", integer(INT_MIN)}));
        EXPECT_EQ(typed(code, "-2147483647"), (Written{"-2147483647", "", integer(-INT_MAX)}));
    }
}

TEST(TypedDefault, AnIntegerOrBoolThatIsNoneThrows) {
    for (const std::int32_t code : {0, 3}) {
        EXPECT_EQ(errorOf<std::invalid_argument>(code, "abc"), "invalid stoi argument");
        EXPECT_EQ(errorOf<std::invalid_argument>(code, ""), "invalid stoi argument");
        EXPECT_EQ(errorOf<std::invalid_argument>(code, "true"), "invalid stoi argument");
        EXPECT_EQ(errorOf<std::out_of_range>(code, "99999999999"), "stoi argument out of range");
        EXPECT_EQ(errorOf<std::out_of_range>(code, "2147483648"), "stoi argument out of range");
    }
}

TEST(TypedDefault, FloatsAndFloatTextures) {
    for (const std::int32_t code : {1, 13}) {
        EXPECT_EQ(typed(code, "0.5"), (Written{"0.5f", "", single(0.5F)}));
        EXPECT_EQ(typed(code, "2"), (Written{"2.f", "", single(2)}));
        EXPECT_EQ(typed(code, "0.1234567"), (Written{"0.123457f", "", single(0.1234567F)}));
        EXPECT_EQ(typed(code, "1000000"), (Written{"1e+06f", "", single(1e6F)}));
        EXPECT_EQ(typed(code, "-0"), (Written{"-0.f", "", single(-0.0F)}));
        EXPECT_EQ(typed(code, "inf"), (Written{"inff", "", single(HUGE_VALF)}));
    }
}

TEST(TypedDefault, AFloatOrFloatTextureThatIsNoneThrows) {
    for (const std::int32_t code : {1, 13}) {
        EXPECT_EQ(errorOf<std::invalid_argument>(code, "abc"), "invalid stof argument");
        EXPECT_EQ(errorOf<std::invalid_argument>(code, ""), "invalid stof argument");
        EXPECT_EQ(errorOf<std::out_of_range>(code, "1e39"), "stof argument out of range");
    }
}

TEST(TypedDefault, Vector) {
    EXPECT_EQ(typed(4, "Vector(1, 0.5, 0)"),
              (Written{d3 + ", vec0", "static constexpr float vec0[] = { 1.f, 0.5f, 0.f};\n",
                       floatArray(273, {1, 0.5F, 0})}));
}

TEST(TypedDefault, Color) {
    EXPECT_EQ(typed(5, "Color(1, 1, 1)"),
              (Written{d3 + ", clr0", "static constexpr float clr0[] = { 1.f, 1.f, 1.f};\n",
                       floatArray(273, {1, 1, 1})}));
}

TEST(TypedDefault, TheWordOfAColorDoesNotCountNorAFourthNumber) {
    EXPECT_EQ(typed(5, "Foo(1, 2, 3, 4)"),
              (Written{d3 + ", clr0", "static constexpr float clr0[] = { 1.f, 2.f, 3.f};\n",
                       floatArray(273, {1, 2, 3})}));
}

TEST(TypedDefault, AColor) {
    EXPECT_EQ(
        typed(6, "AColor(1, 0, 0.25, 1)"),
        (Written{d4 + ", aclr0", "static constexpr float aclr0[] = { 1.f, 0.f, 0.25f, 1.f};\n",
                 floatArray(289, {1, 0, 0.25F, 1})}));
}

TEST(TypedDefault, MatrixByRows) {
    EXPECT_EQ(typed(7, "Matrix(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9))"),
              (Written{d9 + ", matr0",
                       "static constexpr float matr0[] = "
                       "{ 1.f, 2.f, 3.f, 4.f, 5.f, 6.f, 7.f, 8.f, 9.f};\n",
                       floatArray(321, {1, 2, 3, 4, 5, 6, 7, 8, 9})}));
}

TEST(TypedDefault, TransformByMatrixThenOffset) {
    EXPECT_EQ(typed(8,
                    "Transform(Matrix(Vector(1,0,0),Vector(0,1,0),Vector(0,0,1)),"
                    "Vector(5,6,7))"),
              (Written{d12 + ", trans0",
                       "static constexpr float trans0[] = { 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, "
                       "0.f, 1.f, 5.f, 6.f, 7.f};\n",
                       floatArray(385, {1, 0, 0, 0, 1, 0, 0, 0, 1, 5, 6, 7})}));
}

TEST(TypedDefault, WhereAValueCantBeReadTheTablesDiffer) {
    const auto unreadable = [](std::uint32_t descriptor) {
        return Written{emptyLiteral, "", floatArray(descriptor, {})};
    };
    EXPECT_EQ(typed(4, "Vector(1, 2)"), unreadable(273));
    EXPECT_EQ(typed(5, "Color(1, 1)"), unreadable(273));
    EXPECT_EQ(typed(6, "Color(1, 1, 1)"), unreadable(289));
    EXPECT_EQ(typed(7, "Matrix(Vector(1, 2, 3), Vector(4, 5, 6))"), unreadable(321));
    EXPECT_EQ(typed(8, "Matrix(Vector(1,0,0),Vector(0,1,0),Vector(0,0,1))"), unreadable(385));
    EXPECT_EQ(typed(4, ""), unreadable(273));
    EXPECT_EQ(typed(5, ""), unreadable(273));
    EXPECT_EQ(typed(6, ""), unreadable(289));
    EXPECT_EQ(typed(7, ""), unreadable(321));
    EXPECT_EQ(typed(8, ""), unreadable(385));
}

TEST(TypedDefault, StringsAreEscapedInTheSourceOnly) {
    EXPECT_EQ(typed(9, "plain"), (Written{"\"plain\"", "", string("plain")}));
    EXPECT_EQ(typed(9, ""), (Written{emptyLiteral, "", string("")}));
    EXPECT_EQ(typed(9, "\b\t\n\f\r\"\\\x01\x1F/\x7F"),
              (Written{R"("\b\t\n\f\r\"\\\u0001\u001f/)"
                       "\x7F\"",
                       "", string("\b\t\n\f\r\"\\\x01\x1F/\x7F")}));
    EXPECT_EQ(typed(9, "\xC3\xA9\xFF"), (Written{"\"\xC3\xA9\xFF\"", "", string("\xC3\xA9\xFF")}));
}

TEST(TypedDefault, PluginsAndTexturesMayBeColors) {
    for (const std::int32_t code : {10, 11}) {
        EXPECT_EQ(
            typed(code, "AColor(1, 0, 0, 1)"),
            (Written{d4 + ", aclr0", "static constexpr float aclr0[] = { 1.f, 0.f, 0.f, 1.f};\n",
                     floatArray(289, {1, 0, 0, 1})}));
        EXPECT_EQ(typed(code, "Color(1, 0, 0)"),
                  (Written{d3 + ", clr0", "static constexpr float clr0[] = { 1.f, 0.f, 0.f};\n",
                           floatArray(273, {1, 0, 0})}));
    }
}

TEST(TypedDefault, PluginsAndTexturesThatAreNoColorsAreEmpty) {
    for (const std::int32_t code : {10, 11}) {
        EXPECT_EQ(typed(code, "TexBitmap"), (Written{emptyLiteral, "", string("")}));
        EXPECT_EQ(typed(code, "Color(1, 0)"), (Written{emptyLiteral, "", string("")}));
        EXPECT_EQ(typed(code, ""), (Written{emptyLiteral, "", string("")}));
    }
}

TEST(TypedDefault, ListsOfTextsHaveOnlyADescriptor) {
    const Written expected = {ls, "", descriptorOnly(524)};
    for (const std::int32_t code : {12, 109, 111}) {
        EXPECT_EQ(typed(code, "List(a, b)"), expected);
        EXPECT_EQ(typed(code, "Color(1, 1, 1)"), expected);
        EXPECT_EQ(typed(code, ""), expected);
        EXPECT_EQ(absent(code), expected);
    }
}

TEST(TypedDefault, OtherTexturesAndUnspecifiedTypesAreEmpty) {
    for (const std::int32_t code : {14, 15, 16, 17, 10000}) {
        EXPECT_EQ(typed(code, "Color(1, 1, 1)"), (Written{emptyLiteral, "", string("")}));
        EXPECT_EQ(typed(code, "1"), (Written{emptyLiteral, "", string("")}));
        EXPECT_EQ(typed(code, ""), (Written{emptyLiteral, "", string("")}));
    }
}

TEST(TypedDefault, IntegerAndBoolLists) {
    for (const std::int32_t code : {100, 103}) {
        EXPECT_EQ(typed(code, "IntList(1, -2)"),
                  (Written{li + ", inte0", "static constexpr int inte0[] = { 1, -2};\n",
                           integerArray(522, {1, -2})}));
        for (const char* none : {"List()", "List( )", "VectorList(1)", "7", ""}) {
            EXPECT_EQ(typed(code, none), (Written{li, "", descriptorOnly(522)})) << none;
        }
        EXPECT_EQ(absent(code), (Written{li, "", descriptorOnly(522)}));
    }
}

TEST(TypedDefault, AnIntegerThatNoFloatHoldsIsExactOnlyInTheBinaryTable) {
    EXPECT_EQ(typed(100, "List(16777217)"),
              (Written{li + ", inte0", "static constexpr int inte0[] = { 16777216};\n",
                       integerArray(522, {16777217})}));
}

TEST(TypedDefault, AnEmptyPairOfParenthesesAfterALongWordIsOneZero) {
    EXPECT_EQ(typed(100, "IntList()"),
              (Written{li + ", inte0", "static constexpr int inte0[] = { 0};\n",
                       integerArray(522, {0})}));
}

TEST(TypedDefault, FloatLists) {
    EXPECT_EQ(typed(101, "FloatList(0.5, 2)"),
              (Written{lf + ", flt0", "static constexpr float flt0[] = { 0.5f, 2.f};\n",
                       floatArray(521, {0.5F, 2})}));
    for (const char* none : {"List()", "Floats(1)", "0.5", ""}) {
        EXPECT_EQ(typed(101, none), (Written{lf, "", descriptorOnly(521)})) << none;
    }
    EXPECT_EQ(absent(101), (Written{lf, "", descriptorOnly(521)}));
}

TEST(TypedDefault, PluginAndFloatTextureListsFallBackToTexts) {
    for (const std::int32_t code : {110, 113}) {
        EXPECT_EQ(typed(code, "List(0.5, 2)"),
                  (Written{lf + ", flt0", "static constexpr float flt0[] = { 0.5f, 2.f};\n",
                           floatArray(521, {0.5F, 2})}));
        for (const char* none : {"List()", "PluginList(a)", "0.5", ""}) {
            EXPECT_EQ(typed(code, none), (Written{ls, "", descriptorOnly(524)})) << none;
        }
        EXPECT_EQ(absent(code), (Written{ls, "", descriptorOnly(524)}));
    }
}

/// A list text without elements is an array without values.
Written emptyArray(const std::string& descriptor, const std::string& name, std::uint32_t number) {
    return {descriptor + ", " + name, "static constexpr float " + name + "[] = };\n",
            floatArray(number, {})};
}

TEST(TypedDefault, VectorLists) {
    EXPECT_EQ(typed(104, "List(Vector(1,2,3), Vector(4,5,6))"),
              (Written{l3 + ", vec0",
                       "static constexpr float vec0[] = { 1.f, 2.f, 3.f, 4.f, 5.f, 6.f};\n",
                       floatArray(529, {1, 2, 3, 4, 5, 6})}));
    EXPECT_EQ(typed(104, "List()"), emptyArray(l3, "vec0", 529));
    EXPECT_EQ(typed(104, "VectorList(Vector(1,2,3))"), (Written{l3, "", descriptorOnly(529)}));
    EXPECT_EQ(typed(104, ""), (Written{l3, "", descriptorOnly(529)}));
    EXPECT_EQ(absent(104), (Written{l3, "", descriptorOnly(529)}));
}

TEST(TypedDefault, ColorLists) {
    EXPECT_EQ(typed(105, "ColorList(Color(1,1,1), Color(0,0,0))"),
              (Written{l3 + ", clr0",
                       "static constexpr float clr0[] = { 1.f, 1.f, 1.f, 0.f, 0.f, 0.f};\n",
                       floatArray(529, {1, 1, 1, 0, 0, 0})}));
    EXPECT_EQ(typed(105, "List( )"), emptyArray(l3, "clr0", 529));
    EXPECT_EQ(typed(105, "ColorList()"), (Written{l3, "", descriptorOnly(529)}));
    EXPECT_EQ(typed(105, "List(Color(1,1,1), Color(1,1))"), (Written{l3, "", descriptorOnly(529)}));
    EXPECT_EQ(typed(105, ""), (Written{l3, "", descriptorOnly(529)}));
    EXPECT_EQ(absent(105), (Written{l3, "", descriptorOnly(529)}));
}

TEST(TypedDefault, AColorLists) {
    EXPECT_EQ(typed(106, "List(AColor(1,0,0,1))"),
              (Written{l4 + ", aclr0", "static constexpr float aclr0[] = { 1.f, 0.f, 0.f, 1.f};\n",
                       floatArray(545, {1, 0, 0, 1})}));
    EXPECT_EQ(typed(106, "List()"), emptyArray(l4, "aclr0", 545));
    EXPECT_EQ(typed(106, "List(Color(1,0,0))"), (Written{l4, "", descriptorOnly(545)}));
    EXPECT_EQ(typed(106, ""), (Written{l4, "", descriptorOnly(545)}));
    EXPECT_EQ(absent(106), (Written{l4, "", descriptorOnly(545)}));
}

// An element with two levels of parentheses is cut at its first inner one, so only flat elements
// are read whole.
const std::string flatMatrix = "M(1(2,3,4,5(6,7,8,9(10,11,12)";
const std::string flatTransform = "T(1(2(3,4,5,6(7,8,9,10(11,12,13,14(15,16,17)";

TEST(TypedDefault, MatrixLists) {
    EXPECT_EQ(typed(107, "List(Matrix(Vector(1,0,0),Vector(0,1,0),Vector(0,0,1)))"),
              (Written{l9, "", descriptorOnly(577)}));
    EXPECT_EQ(typed(107, "List(" + flatMatrix + ")"),
              (Written{l9 + ", matr0",
                       "static constexpr float matr0[] = { 2.f, 3.f, 4.f, 6.f, 7.f, 8.f, 10.f, "
                       "11.f, 12.f};\n",
                       floatArray(577, {2, 3, 4, 6, 7, 8, 10, 11, 12})}));
    EXPECT_EQ(typed(107, "List()"), emptyArray(l9, "matr0", 577));
    EXPECT_EQ(typed(107, ""), (Written{l9, "", descriptorOnly(577)}));
    EXPECT_EQ(absent(107), (Written{l9, "", descriptorOnly(577)}));
}

TEST(TypedDefault, TransformLists) {
    EXPECT_EQ(typed(108, "List(" + flatTransform + ")"),
              (Written{l12 + ", trans0",
                       "static constexpr float trans0[] = { 3.f, 4.f, 5.f, 7.f, 8.f, 9.f, 11.f, "
                       "12.f, 13.f, 15.f, 16.f, 17.f};\n",
                       floatArray(641, {3, 4, 5, 7, 8, 9, 11, 12, 13, 15, 16, 17})}));
    EXPECT_EQ(typed(108, "List()"), emptyArray(l12, "trans0", 641));
    EXPECT_EQ(typed(108, "TransformList()"), (Written{l12, "", descriptorOnly(641)}));
    EXPECT_EQ(typed(108, ""), (Written{l12, "", descriptorOnly(641)}));
    EXPECT_EQ(absent(108), (Written{l12, "", descriptorOnly(641)}));
}

TEST(TypedDefault, IntegerTextureLists) {
    EXPECT_EQ(typed(114, "List(3)"),
              (Written{li + ", inte0", "static constexpr int inte0[] = { 3};\n",
                       integerArray(522, {3})}));
    EXPECT_EQ(typed(114, "List()"), (Written{li + ", inte0", "static constexpr int inte0[] = };\n",
                                             integerArray(522, {})}));
    EXPECT_EQ(typed(114, "3"), (Written{ls, "", descriptorOnly(524)}));
    EXPECT_EQ(typed(114, ""), (Written{ls, "", descriptorOnly(524)}));
    EXPECT_EQ(absent(114), (Written{ls, "", descriptorOnly(524)}));
}

TEST(TypedDefault, OtherTextureListsFallBackToTexts) {
    EXPECT_EQ(typed(115, "List(Vector(1,2,3))"),
              (Written{l3 + ", vec0", "static constexpr float vec0[] = { 1.f, 2.f, 3.f};\n",
                       floatArray(529, {1, 2, 3})}));
    EXPECT_EQ(typed(116, "List(" + flatMatrix + ")").record,
              floatArray(577, {2, 3, 4, 6, 7, 8, 10, 11, 12}));
    EXPECT_EQ(typed(116, "List(" + flatMatrix + ")").source, l9 + ", matr0");
    EXPECT_EQ(typed(117, "List(" + flatTransform + ")").record,
              floatArray(641, {3, 4, 5, 7, 8, 9, 11, 12, 13, 15, 16, 17}));
    EXPECT_EQ(typed(117, "List(" + flatTransform + ")").source, l12 + ", trans0");
    EXPECT_EQ(typed(115, "List()"), emptyArray(l3, "vec0", 529));
    EXPECT_EQ(typed(116, "List()"), emptyArray(l9, "matr0", 577));
    EXPECT_EQ(typed(117, "List()"), emptyArray(l12, "trans0", 641));
    for (const std::int32_t code : {115, 116, 117}) {
        EXPECT_EQ(typed(code, "List(1)"), (Written{ls, "", descriptorOnly(524)}));
        EXPECT_EQ(typed(code, ""), (Written{ls, "", descriptorOnly(524)}));
        EXPECT_EQ(absent(code), (Written{ls, "", descriptorOnly(524)}));
    }
}

TEST(TypedDefaultDeathTest, OtherTypesEndTheProcess) {
    for (const std::int32_t code : {2, 102, 112, 18, 99, -1, 118, 1000, 10001}) {
        EXPECT_EXIT(readTypedDefault(code, "1", buffer), isBrokenMetadata, "^$") << code;
    }
}

MetaParameter parameter(std::int32_t code, std::optional<std::string_view> defaultText = {}) {
    MetaParameter parameter;
    parameter.code = code;
    parameter.defaultText = defaultText;
    return parameter;
}

Written parameterDefault(std::int32_t code, std::optional<std::string_view> text = {}) {
    return written(readDefault(parameter(code, text), buffer));
}

TEST(ParameterDefault, WithoutATextOnlyAnIntegerIsZero) {
    EXPECT_EQ(parameterDefault(0), (Written{"0", "", integer(0)}));
    for (const std::int32_t code : {3, 1, 2, 5, 9, 13}) {
        EXPECT_EQ(parameterDefault(code), (Written{emptyLiteral, "", string("")})) << code;
    }
}

TEST(ParameterDefault, AListWithoutATextHasItsDescriptor) {
    EXPECT_EQ(parameterDefault(100), (Written{li, "", descriptorOnly(522)}));
    EXPECT_EQ(parameterDefault(12), (Written{ls, "", descriptorOnly(524)}));
}

TEST(ParameterDefault, AnEmptyTextIsOne) {
    EXPECT_EQ(parameterDefault(9, ""), (Written{emptyLiteral, "", string("")}));
    EXPECT_EQ(parameterDefault(5, ""), (Written{emptyLiteral, "", floatArray(273, {})}));
    EXPECT_THROW(readDefault(parameter(0, ""), buffer), std::invalid_argument);
}

TEST(ParameterDefault, ATextIsReadByTheType) {
    EXPECT_EQ(parameterDefault(101, "List(1)"),
              (Written{lf + ", flt0", "static constexpr float flt0[] = { 1.f};\n",
                       floatArray(521, {1})}));
}

TEST(ParameterDefaultDeathTest, ADoubleWithATextAndAListOfThemEndTheProcess) {
    EXPECT_EXIT(readDefault(parameter(2, "1"), buffer), isBrokenMetadata, "^$");
    EXPECT_EXIT(readDefault(parameter(102), buffer), isBrokenMetadata, "^$");
}

}  // namespace
}  // namespace metagen

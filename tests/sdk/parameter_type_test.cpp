#include "sdk/parameter_type.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <map>
#include <optional>
#include <string>

#include "support/exit_status.h"

namespace metagen {
namespace {

const std::map<std::int32_t, std::string> names = {{0, "integer"},
                                                   {1, "float"},
                                                   {2, "float"},
                                                   {3, "bool"},
                                                   {4, "vector"},
                                                   {5, "color"},
                                                   {6, "acolor"},
                                                   {7, "matrix"},
                                                   {8, "transform"},
                                                   {9, "string"},
                                                   {10, "plugin"},
                                                   {11, "texture"},
                                                   {13, "float texture"},
                                                   {14, "integer texture"},
                                                   {15, "vector texture"},
                                                   {16, "matrix texture"},
                                                   {17, "transform texture"}};

TEST(TypeName, OfSingleCodesAndTheirListCodes) {
    for (const auto& [code, name] : names) {
        EXPECT_EQ(typeName(code), name) << code;
        EXPECT_EQ(typeName(code + 100), name) << code + 100;
        EXPECT_TRUE(hasTypeName(code) && hasTypeName(code + 100)) << code;
    }
    EXPECT_TRUE(hasTypeName(12));
    EXPECT_EQ(typeName(12), "list");
}

TEST(TypeNameDeathTest, ACodeOutsideTheVocabularyEndsWithBrokenMetadata) {
    for (const std::int32_t code : {-1, 18, 99, 112, 118, 1000, 10000}) {
        EXPECT_FALSE(hasTypeName(code)) << code;
        EXPECT_EXIT((showOutputAtExit(), typeName(code)), isBrokenMetadata,
                    "^Error No Ovix Type!\n$")
            << code;
    }
}

TEST(IsListCode, IsTrueForTheGenericListAndFrom100Up) {
    for (const std::int32_t code : {12, 100, 112, 10000}) EXPECT_TRUE(isListCode(code)) << code;
    for (const std::int32_t code : {-1, 0, 11, 13, 99}) EXPECT_FALSE(isListCode(code)) << code;
}

TEST(TypeCode, OfEveryName) {
    const std::map<std::string, std::int32_t> codes = {{"integer", 0},
                                                       {"float", 1},
                                                       {"double", 2},
                                                       {"bool", 3},
                                                       {"vector", 4},
                                                       {"color", 5},
                                                       {"acolor", 6},
                                                       {"matrix", 7},
                                                       {"transform", 8},
                                                       {"string", 9},
                                                       {"plugin", 10},
                                                       {"texture", 11},
                                                       {"acolor texture", 11},
                                                       {"color texture", 11},
                                                       {"float texture", 13},
                                                       {"integer texture", 14},
                                                       {"vector texture", 15},
                                                       {"matrix texture", 16},
                                                       {"transform texture", 17}};
    for (const auto& [name, code] : codes) {
        EXPECT_EQ(typeCode(name, "none"), code) << name;
        EXPECT_EQ(typeCode(name, "bool"), code) << name;  // the list type is not looked at
        EXPECT_EQ(typeCode("list", name), code + 100) << name;
    }
}

TEST(TypeCode, AListOfListsIsTheGenericList) { EXPECT_EQ(typeCode("list", "list"), 12); }

TEST(TypeCode, AListOfSomethingUnknownIsUnknown) {
    EXPECT_EQ(typeCode("list", "none"), -1);
    EXPECT_EQ(typeCode("list", "List"), -1);
    EXPECT_EQ(typeCode("list", ""), -1);
}

TEST(TypeCode, NamesAreExact) {
    for (const char* name : {"Float", "none", "", "float ", "float texture ", "List", "floa"}) {
        EXPECT_EQ(typeCode(name, "float"), -1) << name;
    }
}

TEST(ParameterTypes, StandInTheOrderOfTheirCodes) {
    for (std::size_t index = 0; index < parameterTypes.size(); ++index) {
        EXPECT_EQ(parameterTypes[index].code, static_cast<std::int32_t>(index));
    }
}

TEST(ParameterTypes, AreReadableWhereTheirDefaultsAreReadBack) {
    for (const ParameterType& type : parameterTypes) {
        const bool isReadable = type.name != "double" && type.name != "string" &&
                                type.name != "list" &&
                                (type.name == "float texture" || !type.name.ends_with(" texture"));
        EXPECT_EQ(type.isReadable, isReadable) << type.name;
    }
}

TEST(FindElementType, IsNullForWhatIsNoListOfOneType) {
    for (const std::int32_t kind : {-1, 1, 12, 100 + 2, 100 + 12, 10000}) {
        EXPECT_EQ(findElementType(kind), nullptr) << kind;
    }
    EXPECT_EQ(findElementType(105)->name, "color");
}

TEST(CategoryName, OfEveryCode) {
    const std::initializer_list<const char*> categories = {
        "bitmap",         "BRDF",     "node",     "geometry", "light",     "material",
        "render_channel", "settings", "settings", "texture",  "texture",   "texture",
        "texture",        "texture",  "texture",  "uvw",      "volumetric"};
    int code = 0;
    for (const char* name : categories) EXPECT_EQ(categoryName(code++), name);
    for (const int unnamed : {17, 18, 19, 20, -1}) EXPECT_EQ(categoryName(unnamed), std::nullopt);
}

}  // namespace
}  // namespace metagen

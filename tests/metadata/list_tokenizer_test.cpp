#include "metadata/default_value_parser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace metagen {
namespace {

using Elements = std::vector<std::string>;

Elements elementsOf(std::string_view text) {
    Elements elements;
    ListTokenizer tokenizer(text);
    while (const auto element = tokenizer.next()) elements.emplace_back(*element);
    return elements;
}

TEST(IsListText, AcceptsListInTheFirstSixPlaces) {
    for (const char* text : {"List(", "IntList(", "FloatList(", "ColorList(1)", "12345List("}) {
        EXPECT_TRUE(isListText(text)) << text;
    }
}

TEST(IsListText, RefusesListFurtherOn) {
    for (const char* text : {"VectorList(", "TransformList(", "123456List("}) {
        EXPECT_FALSE(isListText(text)) << text;
    }
}

TEST(IsListText, CountsThePlacesFromTheFirstCharacterThatIsNoBlank) {
    EXPECT_TRUE(isListText(" \t\n\v\f\rColorList("));
    EXPECT_FALSE(isListText(" \t\n\v\f\rVectorList("));
}

TEST(IsListText, SkipsTheLettersAfterList) {
    EXPECT_TRUE(isListText("IntListAZaz("));
    EXPECT_TRUE(isListText("ListList("));
}

TEST(IsListText, WantsTheParenthesisRightAfterTheWord) {
    for (const char* text : {"List (", "List2(", "List", "IntListX", "List List(", "List@(",
                             "List[(", "List`(", "List{("}) {
        EXPECT_FALSE(isListText(text)) << text;
    }
}

TEST(IsListText, ComparesCase) {
    EXPECT_FALSE(isListText("list("));
    EXPECT_FALSE(isListText("LIST("));
}

TEST(IsListText, RefusesTextsWithoutList) {
    for (const char* text : {"", "   ", "Lis", "Color(1, 1, 1)", "(", "1"}) {
        EXPECT_FALSE(isListText(text)) << text;
    }
    EXPECT_FALSE(isListText(std::string_view()));
}

TEST(IsListText, EndsAtANul) { EXPECT_FALSE(isListText(std::string_view("a\0List(", 7))); }

TEST(ListTokenizer, GivesNoElementOfWhatIsNoList) {
    EXPECT_EQ(elementsOf("Color(1, 1, 1)"), Elements());
    EXPECT_EQ(elementsOf("VectorList(Vector(1,2,3))"), Elements());
    EXPECT_EQ(elementsOf(""), Elements());
}

TEST(ListTokenizer, TrimsTheElements) {
    EXPECT_EQ(elementsOf("List( 1 , 2 )"), Elements({"1", "2"}));
    EXPECT_EQ(elementsOf("IntList(\t1\n,\v2\f)"), Elements({"1", "2"}));
}

TEST(ListTokenizer, GivesNoElementOfAnEmptyPlainList) {
    EXPECT_EQ(elementsOf("List()"), Elements());
    EXPECT_EQ(elementsOf("List( )"), Elements());
}

TEST(ListTokenizer, GivesAnEmptyElementOfAnEmptyListWithAPrefix) {
    EXPECT_EQ(elementsOf("IntList()"), Elements({""}));
    EXPECT_EQ(elementsOf("FloatList()"), Elements({""}));
    EXPECT_EQ(elementsOf("ColorList()"), Elements({""}));
    EXPECT_EQ(elementsOf("IntList( )"), Elements({""}));
}

TEST(ListTokenizer, EndsAfterATrailingComma) {
    EXPECT_EQ(elementsOf("List(1,2,)"), Elements({"1", "2"}));
}

TEST(ListTokenizer, GivesTheBlankAfterATrailingCommaAsAnEmptyElement) {
    EXPECT_EQ(elementsOf("List(1,2, )"), Elements({"1", "2", ""}));
}

TEST(ListTokenizer, GivesTheEmptyElementBeforeAComma) {
    EXPECT_EQ(elementsOf("List(,1)"), Elements({"", "1"}));
    EXPECT_EQ(elementsOf("List(1,,2)"), Elements({"1", "", "2"}));
}

TEST(ListTokenizer, KeepsAnElementWithParenthesesWhole) {
    EXPECT_EQ(elementsOf("ColorList(Color(1,1,1), Color(0,0,0))"),
              Elements({"Color(1,1,1)", "Color(0,0,0)"}));
}

TEST(ListTokenizer, CutsAnElementWithTwoLevelsOfParentheses) {
    EXPECT_EQ(elementsOf("List(Matrix(Vector(1,0,0),Vector(0,1,0)))"),
              Elements({"Matrix(Vector(1,0,0)", "Vector(0,1,0)"}));
}

TEST(ListTokenizer, TakesWhatFollowsAnElementsParenthesesUpToTheComma) {
    EXPECT_EQ(elementsOf("List(a(1,1)b c , 2)"), Elements({"a(1,1)b c", "2"}));
    EXPECT_EQ(elementsOf("List(a)(1,1), 2)"), Elements({"a)(1,1)", "2"}));
}

TEST(ListTokenizer, EndsTheLastElementAtItsParenthesis) {
    EXPECT_EQ(elementsOf("List(1, a(2,3))"), Elements({"1", "a(2,3)"}));
    EXPECT_EQ(elementsOf("List(1, a(2,3)b)"), Elements({"1", "a(2,3)"}));
    EXPECT_EQ(elementsOf("List(1, a(2,3)bc)"), Elements({"1", "a(2,3)", "c"}));
    EXPECT_EQ(elementsOf("List(1, a(2,3)  )"), Elements({"1", "a(2,3)", ""}));
}

TEST(ListTokenizer, EndsAnElementThatNoCommaFollowsAtTheLastParenthesisOfTheText) {
    EXPECT_EQ(elementsOf("List(Color(1))"), Elements({"Color(1)"}));
    EXPECT_EQ(elementsOf("List(1, 2) 3) x"), Elements({"1", "2) 3"}));
}

TEST(ListTokenizer, EndsAtAnElementWhoseParenthesisStaysOpen) {
    EXPECT_EQ(elementsOf("List(1,Color(2,3"), Elements({"1"}));
}

TEST(ListTokenizer, GivesNothingWithoutAClosingParenthesis) {
    EXPECT_EQ(elementsOf("List(1"), Elements());
    EXPECT_EQ(elementsOf("List("), Elements());
    EXPECT_EQ(elementsOf("List(1,2"), Elements({"1"}));
}

TEST(ListTokenizer, IgnoresTextAfterTheClosingParenthesis) {
    EXPECT_EQ(elementsOf("List(1) x"), Elements({"1"}));
}

TEST(ListTokenizer, BeginsAtTheFirstParenthesisFromTheFifthCharacterOn) {
    EXPECT_EQ(elementsOf("abcd(List(1,2)"), Elements({"List(1,2)"}));
    EXPECT_EQ(elementsOf("(abList(1,2)"), Elements({"1", "2"}));
}

TEST(ListTokenizer, StartsAgainWithFirst) {
    ListTokenizer tokenizer("List(1, 2)");
    EXPECT_EQ(tokenizer.next(), "1");
    EXPECT_EQ(tokenizer.next(), "2");
    EXPECT_EQ(tokenizer.first(), "1");
    EXPECT_EQ(tokenizer.next(), "2");
    EXPECT_EQ(tokenizer.next(), std::nullopt);
    EXPECT_EQ(tokenizer.next(), std::nullopt);
    ListTokenizer noList("1, 2)");
    EXPECT_EQ(noList.first(), std::nullopt);
    EXPECT_EQ(noList.next(), std::nullopt);
}

}  // namespace
}  // namespace metagen

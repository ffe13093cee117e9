#include <gtest/gtest.h>

#include <string>

#include "json/document.h"

namespace metagen::json {
namespace {

std::string written(const Place& place) {
    return std::to_string(place.line) + ':' + std::to_string(place.column);
}

/// The places of all keys and values below the value, in the order of the tree.
void appendPlaces(std::string& out, PlaceFinder& places, const Value& value) {
    out += written(places.placeOf(value)) + ' ';
    for (const Value& element : value.array().value_or(Array())) appendPlaces(out, places, element);
    for (const Member& member : value.object().value_or(Object())) {
        out += std::string(member.key) + '@' + written(places.placeOf(member.key)) + ' ';
        appendPlaces(out, places, member.value);
    }
}

std::string placesIn(const std::string& text) {
    const Document document(text);
    PlaceFinder places(document);
    std::string found;
    appendPlaces(found, places, document.root());
    return found;
}

TEST(Places, OfEveryKindOfValue) {
    EXPECT_EQ(placesIn(" {\"a\": [1, \"t\",\n true ], \"b\" :\n  {}\n}"),
              "1:2 a@1:3 1:8 1:9 1:12 2:2 b@2:10 3:3 ");
}

TEST(Places, CountCharactersAndNotBytes) {
    EXPECT_EQ(placesIn("[\"\xc3\xa4\xe2\x82\xac\", \"\xf0\x9f\x98\x80\", 1]"), "1:1 1:2 1:8 1:13 ");
}

TEST(Places, OfKeysAndTextsWithEscapes) {
    EXPECT_EQ(placesIn("{\n\"b\": \"\\n\",\n \"\\u0061\": 1}"), "1:1 a@3:2 3:12 b@2:1 2:6 ");
}

TEST(Places, OfTheLastOfEqualKeys) { EXPECT_EQ(placesIn("{\"a\":1,\n\"a\":2}"), "1:1 a@2:1 2:5 "); }

TEST(Places, OfTheEmptyKey) { EXPECT_EQ(placesIn("{\"\":1}"), "1:1 @1:2 1:5 "); }

TEST(Places, AskedBackwards) {
    const Document document("[\n1,\n2]");
    const Array elements = *document.root().array();
    PlaceFinder places(document);
    EXPECT_EQ(written(places.placeOf(elements[1])), "3:1");
    EXPECT_EQ(written(places.placeOf(elements[0])), "2:1");
    EXPECT_EQ(written(places.placeOf(elements[1])), "3:1");
}

}  // namespace
}  // namespace metagen::json

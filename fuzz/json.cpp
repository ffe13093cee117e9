// The JSON entry: a document holds what the JSON library's own tree of the same bytes holds.
#include <algorithm>
#include <string>

#include "fuzz_target.h"
#include "json/referee.h"

using namespace metagen;

namespace {

/// Every value and key stands within the text.
void checkPlaces(const json::Document& document, json::PlaceFinder& places,
                 const json::Value& value) {
    fuzz::require(value.offset() < document.text().size(), "a value stands within its document");
    for (const json::Value& element : value.array().value_or(json::Array())) {
        checkPlaces(document, places, element);
    }
    for (const auto& [key, member] : value.object().value_or(json::Object())) {
        const json::Place keyPlace = places.placeOf(key);
        const json::Place valuePlace = places.placeOf(member);
        fuzz::require(document.text()[document.offsetOf(key)] == '"', "a key begins at its quote");
        fuzz::require(keyPlace.line <= valuePlace.line, "a value stands behind its key");
        checkPlaces(document, places, member);
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(fuzz::textOf(data, size));
    fuzz::require(json::disagreement(text).empty(), "both trees hold the same");
    const json::Document document(text);
    if (document.isValid()) {
        json::PlaceFinder places(document);
        checkPlaces(document, places, document.root());
    } else {
        const auto lines = std::count(text.begin(), text.end(), '\n');
        fuzz::require(document.errorLine() >= 1 && document.errorLine() <= 1 + lines,
                      "an error stands on a line of the document");
    }
    return 0;
}

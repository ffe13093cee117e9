// The readers of default value texts, every one on the same text.
#include <array>
#include <string>

#include "fuzz_target.h"
#include "metadata/default_value_parser.h"
#include "support/numbers.h"

using namespace metagen;

namespace {

/// Elements lie within the text, one after the other, and there are at most as many as bytes.
void walkElements(std::string_view text) {
    ListTokenizer tokenizer(text);
    const char* last = text.data();
    std::size_t count = 0;
    while (const auto element = tokenizer.next()) {
        fuzz::require(element->data() >= last, "elements ascend");
        fuzz::require(element->data() + element->size() <= text.data() + text.size(),
                      "elements lie in the text");
        last = element->data();
        fuzz::require(++count <= text.size(), "elements end");
    }
}

template <typename Number>
void readList(bool (*reader)(std::string_view, std::vector<Number>&), std::string_view text,
              bool failsOnlyOutsideLists) {
    std::vector<Number> numbers;
    const bool read = reader(text, numbers);
    fuzz::require(isListText(text) || (!read && numbers.empty()), "only lists have elements");
    if (failsOnlyOutsideLists) fuzz::require(read == isListText(text), "numbers never fail");
}

void readSingles(std::string_view text) {
    std::array<float, 3> vector = {};
    std::array<float, 4> color = {};
    std::array<float, 9> matrix = {};
    std::array<float, 12> transform = {};
    const bool three = parseVector3(text, vector);
    const bool four = parseAColor(text, color);
    fuzz::require(three || !four, "whoever has four fields has three");
    fuzz::require(parseMatrix(text, matrix) || !parseTransform(text, transform),
                  "a transform has the fields of a matrix");
    static_cast<void>(readIntegerPrefix(text));
    static_cast<void>(readDoublePrefix(text));
}

void readLists(std::string_view text) {
    readList(parseIntList, text, true);
    readList(parseFloatList, text, true);
    readList(parseVector3List, text, false);
    readList(parseAColorList, text, false);
    readList(parseMatrixList, text, false);
    readList(parseTransformList, text, false);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string copy(fuzz::textOf(data, size));  // no byte more, for the address sanitizer
    walkElements(copy);
    readSingles(copy);
    readLists(copy);
    fuzz::runToItsEnd([](std::string_view text) { parseInteger(text); }, copy);
    fuzz::runToItsEnd([](std::string_view text) { parseFloat(text); }, copy);
    return 0;
}

// The JSON entry: what is read is written and read again, to the same text.
#include <algorithm>

#include "fuzz_target.h"
#include "support/json.h"

using namespace metagen;

namespace {

void checkErrorLine(std::string_view text, int line) {
    fuzz::require(line >= 1 && line <= 1 + std::count(text.begin(), text.end(), '\n'),
                  "an error stands on a line of the document");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::textOf(data, size);
    int errorLine = 0;
    const std::optional<json::Value> value = json::parse(text, errorLine);
    if (!value) {
        checkErrorLine(text, errorLine);
        return 0;
    }
    const std::string written = json::compactText(*value);
    const std::optional<json::Value> again = json::parse(written);
    fuzz::require(again.has_value(), "what was written can be read");
    fuzz::require(json::compactText(*again) == written, "and gives the same text");
    return 0;
}

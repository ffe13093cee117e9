// A catalogue of the replay SDK: read, and every class and parameter looked up.
#include "replay_sdk/catalogue.h"

#include "fuzz_target.h"
#include "replay_sdk/catalogue_reader.h"

using namespace metagen;

namespace {

void lookUpEverything(const replay::Catalogue& catalogue) {
    for (const replay::PluginClass& known : catalogue.classes) {
        fuzz::require(catalogue.classNamed(known.name) == &known, "classes are found by name");
        fuzz::require(catalogue.classOfTypeText(known.typeText) == &known, "and by type text");
        fuzz::require(catalogue.classOfTypeId(known.typeId) == &known, "and by type id");
        for (std::size_t index = 0; index < known.parameterCount; ++index) {
            const replay::Parameter& parameter =
                catalogue.parameters.at(known.firstParameter + index);
            fuzz::require(catalogue.parameterNamed(known, parameter.name) == &parameter,
                          "parameters are found by name");
        }
    }
}

void readOneCatalogue(std::string_view text) {
    lookUpEverything(*replay::readCatalogue(std::string(text)));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::runToItsEnd(readOneCatalogue, fuzz::textOf(data, size));
    return 0;
}

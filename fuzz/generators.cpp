// A combined document through both readers and both generators, source text and binary table.
#include <string>

#include "fuzz_target.h"
#include "genh/handler_tables.h"
#include "genm/file_tables.h"
#include "genm/registrations.h"
#include "genm/scaling_table.h"
#include "model/model_reader.h"
#include "support/json.h"
#include "support/numeric.h"

using namespace metagen;

namespace {

BinaryFile& binarySink() {
    static BinaryFile sink("/dev/null", std::ios::binary);
    return sink;
}

const json::Object& pluginsOf(const json::Value& document) {
    return json::asObject(json::at(json::asObject(document), "plugins"));
}

void generateHandlers(const json::Object& plugins) {
    const CombinedModel model = readCombinedModel(plugins, "handler");
    std::string text;
    appendHandlerStatements(text, model);
    writeHandlerTable(binarySink(), 3, model);
    fuzz::require(model.empty() == text.empty(), "every plugin has a statement");
}

void generateSideTables(const CombinedModel& model, std::string& text) {
    const FileTables files = collectFileTables(model);
    const ScalingTable scaling = collectScalingTable(model);
    writeFileTable(binarySink(), files.files);
    writeFileTable(binarySink(), files.inputFiles);
    writeScalingTable(binarySink(), scaling, model);
    appendFileTable(text, "m.fileParams", files.files);
    appendFileTable(text, "m.inputFileParams", files.inputFiles);
    appendScalingTable(text, scaling, model);
}

void generateMeta(const json::Object& plugins) {
    const CombinedModel model = readCombinedModel(plugins, "meta");
    ValueArrays arrays;
    Registrations registrations;
    fillRegistrations(registrations, arrays, model);
    std::string& text = registrations.source;
    generateSideTables(model, text);
    appendDefinitions(text, arrays);
}

/// Each generator on its own: what one refuses, the other may take.
template <void (*generate)(const json::Object& plugins)>
void generateFrom(std::string_view text) {
    if (const std::optional<json::Value> document = json::parse(text)) {
        generate(pluginsOf(*document));
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::textOf(data, size);
    fuzz::runToItsEnd(generateFrom<generateHandlers>, text);
    fuzz::runToItsEnd(generateFrom<generateMeta>, text);
    return 0;
}

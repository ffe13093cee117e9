// A combined document through both readers and both generators, source text and binary table.
#include <string>

#include "fuzz_target.h"
#include "genh/genh.h"
#include "genm/tables.h"
#include "json/document.h"
#include "model/handlers.h"
#include "model/meta_model.h"

using namespace metagen;

namespace {

void generateHandlers(json::Object plugins) {
    const std::vector<HandlerPlugin> handlers = readHandlers(plugins);
    std::string text;
    appendHandlerStatements(text, handlers);
    const std::string table = handlerTable(3, handlers);
    fuzz::require(handlers.empty() == text.empty(), "every plugin has a statement");
    fuzz::require(handlers.empty() == (table.size() == 12), "every plugin has a record");
}

void generateMeta(json::Object plugins) {
    Arena arena;
    const MetaModel model = readMeta(plugins, arena);
    ValueArrays arrays;
    std::string source;
    std::string table;
    appendRegistrations(source, table, arrays, model);
    const FileTables files = collectFileTables(model);
    const ScalingTable scaling = collectScalingTable(model);
    for (const FileTable& fileTable : {files.files, files.inputFiles}) {
        appendFileRecords(table, fileTable);
        appendFileTable(source, "m.fileParams", fileTable);
    }
    appendScalingRecords(table, scaling, model);
    appendScalingTable(source, scaling, model);
    appendDefinitions(source, arrays);
}

/// Each generator on its own: what one refuses, the other may take.
template <void (*generate)(json::Object plugins)>
void generateFrom(std::string_view text) {
    const json::Document document{std::string(text)};
    if (document.isValid()) {
        generate(json::asObject(json::at(json::asObject(document.root()), "plugins")));
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::textOf(data, size);
    fuzz::runToItsEnd(generateFrom<generateHandlers>, text);
    fuzz::runToItsEnd(generateFrom<generateMeta>, text);
    return 0;
}

#include "genm/genm.h"

#include <string>
#include <string_view>
#include <utility>

#include "genm/tables.h"
#include "genm/value_arrays.h"
#include "json/document.h"
#include "model/binary_table.h"
#include "model/meta_model.h"
#include "support/end_run.h"
#include "support/memory.h"
#include "support/numbers.h"
#include "support/text_file.h"

namespace metagen {

namespace {

json::Object pluginsOrExit(const json::Value& document) {
    constexpr std::string_view message = "JSON is not an object";
    const json::Value* plugins = json::find(json::objectOrExit(document, message), "plugins");
    requireOrExit(plugins != nullptr, message);
    return json::objectOrExit(*plugins, message);
}

double versionOrExit(const json::Value& document) {
    const json::Value* version = json::find(json::asObject(document), "version");
    const auto number = version == nullptr ? std::nullopt : version->number();
    requireOrExit(number.has_value(), "no version number");
    return *number;
}

std::string arrayDefinitions(const ValueArrays& arrays) {
    std::string text = "//unique value arrays\n";
    appendDefinitions(text, arrays);
    return text;
}

/// A file, and what is to stand in it.
struct Output {
    File file;
    std::string content = {};
};

/// The order of the steps shows in what a failing run leaves behind: nothing is written before
/// every default is read, and the source text only when the binary table is complete.
void generate(const MetaModel& model, double version, Output source, Output table) {
    const FileTables files = collectFileTables(model);
    const ScalingTable scaling = collectScalingTable(model);
    ValueArrays arrays;
    table.content += "META";
    appendI32(table.content, toInt32(version));
    appendCount(table.content, model.size());
    source.content += "\nMeta m(";
    appendGeneral(source.content, version);
    source.content += ");\n\n";
    appendRegistrations(source.content, table.content, arrays, model);

    appendFileRecords(table.content, files.files);
    appendFileRecords(table.content, files.inputFiles);
    appendScalingRecords(table.content, scaling, model);
    writeAll(table.file.get(), table.content);
    table.file.reset();

    appendFileTable(source.content, "m.fileParams", files.files);
    source.content += '\n';
    appendFileTable(source.content, "m.inputFileParams", files.inputFiles);
    source.content += '\n';
    appendScalingTable(source.content, scaling, model);
    source.content += "\nreturn m;\n";
    writeAll(source.file.get(), arrayDefinitions(arrays));
    writeAll(source.file.get(), source.content);
}

}  // namespace

void genm(const char* inputPath, const char* outputBase) {
    constexpr std::string_view inputNotOpened = "Could not open input file";
    const std::string base = outputBase;
    File input = openForReading(inputPath);
    requireOrExit(input != nullptr, inputNotOpened);
    Output source = {openForWriting((base + ".inl").c_str())};
    requireOrExit(source.file != nullptr, "Could not open the INL output file");
    Output table = {openForWriting((base + ".bin").c_str(), "wb")};
    requireOrExit(table.file != nullptr, "Could not open the BIN output file");

    const json::Document document(readOrExit(std::move(input), inputNotOpened));
    requireOrExit(document.isValid(), "the given json file has errors inside");
    const json::Object plugins = pluginsOrExit(document.root());
    const double version = versionOrExit(document.root());
    // About as much: text that grows in steps costs memory, and a copy, for each.
    reserveText(source.content, document.text().size());
    reserveText(table.content, document.text().size());
    Arena arena;
    generate(readMeta(plugins, arena), version, std::move(source), std::move(table));
}

}  // namespace metagen

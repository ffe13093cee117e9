#include "genm/genm.h"

#include <ios>
#include <string>
#include <string_view>
#include <utility>

#include "genm/file_tables.h"
#include "genm/registrations.h"
#include "genm/scaling_table.h"
#include "genm/value_arrays.h"
#include "model/model_reader.h"
#include "model/obstream.h"
#include "support/json.h"
#include "support/json_file.h"
#include "support/number_text.h"
#include "support/numeric.h"
#include "support/process_end.h"
#include "support/text_file.h"

namespace metagen {

namespace {

constexpr const char* inputNotOpened = "Could not open input file";

/// What both files are written from.
struct Tables {
    double version;
    const CombinedModel& model;
    FileTables files;
    ScalingTable scaling;
    ValueArrays arrays = {};
    Registrations registrations = {};
};

const json::Object& pluginsOrExit(const json::Value& document) {
    constexpr const char* message = "JSON is not an object";
    const json::Value* plugins = json::find(json::objectOrExit(document, message), "plugins");
    requireOrExit(plugins != nullptr, message);
    return json::objectOrExit(*plugins, message);
}

double versionOrExit(const json::Value& document) {
    const json::Value* version = json::find(json::asObject(document), "version");
    requireOrExit(version != nullptr && version->is<double>(), "no version number");
    return version->get<double>();
}

void writeBinaryTables(BinaryFile& file, const Tables& tables) {
    file.writeTag("META");
    file.writeI32(toInt32(tables.version));
    file.writeCount(tables.model.size());
    file << tables.registrations.records.view();
    writeFileTable(file, tables.files.files);
    writeFileTable(file, tables.files.inputFiles);
    writeScalingTable(file, tables.scaling, tables.model);
    file.close();
}

/// What stands before the registrations.
std::string sourceHead(const Tables& tables) {
    std::string text = "//unique value arrays\n";
    appendDefinitions(text, tables.arrays);
    text += "\nMeta m(";
    appendGeneral(text, tables.version);
    text += ");\n\n";
    return text;
}

/// What follows the registrations.
std::string sourceTail(const Tables& tables) {
    std::string text;
    appendFileTable(text, "m.fileParams", tables.files.files);
    text += '\n';
    appendFileTable(text, "m.inputFileParams", tables.files.inputFiles);
    text += '\n';
    appendScalingTable(text, tables.scaling, tables.model);
    text += "\nreturn m;\n";
    return text;
}

void writeSourceTables(std::FILE* file, const Tables& tables) {
    const std::string tail = sourceTail(tables);  // it may end the process
    writeAll(file, sourceHead(tables));
    writeAll(file, tables.registrations.source);
    writeAll(file, tail);
}

}  // namespace

// The order of the steps shows in what a failing run leaves behind: nothing is written before every
// default is read, and the source text only when the binary table is complete.
void genm(const char* inputPath, const char* outputBase) {
    const std::string base = outputBase;
    File input = openForReading(inputPath);
    requireOrExit(input != nullptr, inputNotOpened);
    const File inlFile = openForWriting((base + ".inl").c_str());
    requireOrExit(inlFile != nullptr, "Could not open the INL output file");
    BinaryFile binFile(base + ".bin", std::ios::binary);
    requireOrExit(binFile.is_open(), "Could not open the BIN output file");

    const json::Value& document = json::parseFileOrExit(std::move(input), inputNotOpened,
                                                        "the given json file has errors inside");
    const json::Object& plugins = pluginsOrExit(document);
    const double version = versionOrExit(document);
    const CombinedModel model = readCombinedModel(plugins, "meta");
    Tables tables = {version, model, collectFileTables(model), collectScalingTable(model)};
    fillRegistrations(tables.registrations, tables.arrays, model);
    writeBinaryTables(binFile, tables);
    writeSourceTables(inlFile.get(), tables);
}

}  // namespace metagen

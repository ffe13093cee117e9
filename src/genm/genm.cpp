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

std::string registrations(const Tables& tables, ValueArrays& arrays) {
    std::string text = "Meta m(";
    appendGeneral(text, tables.version);
    text += ");\n\n";
    appendRegistrations(text, tables.model, arrays);
    return text;
}

void writeBinaryTables(BinaryFile& file, const Tables& tables) {
    file.writeTag("META");
    file.writeI32(toInt32(tables.version));
    file.writeCount(tables.model.size());
    writeRegistrations(file, tables.model);
    writeFileTable(file, tables.files.files);
    writeFileTable(file, tables.files.inputFiles);
    writeScalingTable(file, tables.scaling, tables.model);
    file.close();
}

/// Appends the sections that follow the registrations.
void appendSideTables(std::string& text, const Tables& tables) {
    appendFileTable(text, "m.fileParams", tables.files.files);
    text += '\n';
    appendFileTable(text, "m.inputFileParams", tables.files.inputFiles);
    text += '\n';
    appendScalingTable(text, tables.scaling, tables.model);
    text += "\nreturn m;\n";
}

void writeInl(std::FILE* file, const ValueArrays& arrays, std::string_view body) {
    std::string head = "//unique value arrays\n";
    appendDefinitions(head, arrays);
    head += '\n';
    writeAll(file, head);
    writeAll(file, body);
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
    const Tables tables = {version, model, collectFileTables(model), collectScalingTable(model)};

    ValueArrays arrays;
    std::string body = registrations(tables, arrays);
    writeBinaryTables(binFile, tables);
    appendSideTables(body, tables);
    writeInl(inlFile.get(), arrays, body);
}

}  // namespace metagen

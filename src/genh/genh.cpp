#include "genh/genh.h"

#include <ios>
#include <string>
#include <utility>

#include "genh/handler_tables.h"
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

constexpr const char* noObject = "JSON is not an object";

double versionOrExit(const json::Object& document) {
    const json::Value& version = json::at(document, "version");
    requireOrExit(version.is<double>(), "There is no version in the combined file");
    return version.get<double>();
}

std::string sourceText(double version, const CombinedModel& model) {
    std::string text = "HandlerMeta m(";
    appendGeneral(text, version);
    text += ");\n";
    appendHandlerStatements(text, model);
    text += "\nreturn m;\n";
    return text;
}

}  // namespace

void genh(const char* inputPath, const char* outputBase) {
    File input = openForReading(inputPath);
    requireOrExit(input != nullptr, "Could not open the file - %s", inputPath);
    const File source = openForWriting((std::string(outputBase) + ".inl").c_str());
    requireOrExit(source != nullptr, "Could not open the INL output file");
    BinaryFile table(std::string(outputBase) + ".bin", std::ios::binary);
    requireOrExit(table.is_open(), "Could not open the BIN output file");

    const json::Value& value = json::parseFileOrExit(
        std::move(input), "Could not open the file - " + std::string(inputPath),
        "The given json file has errors inside");
    const json::Object& document = json::objectOrExit(value, noObject);
    const json::Object& plugins = json::objectOrExit(json::at(document, "plugins"), noObject);
    const double version = versionOrExit(document);

    const CombinedModel model = readCombinedModel(plugins, "handler");
    const std::string text = sourceText(version, model);
    writeHandlerTable(table, toInt32(version), model);
    writeAll(source.get(), text);
}

}  // namespace metagen

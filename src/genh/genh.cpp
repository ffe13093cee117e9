#include "genh/genh.h"

#include <string>
#include <utility>

#include "json/document.h"
#include "model/handlers.h"
#include "support/end_run.h"
#include "support/numbers.h"
#include "support/text_file.h"

namespace metagen {

namespace {

double versionOrExit(json::Object document) {
    const auto version = json::at(document, "version").number();
    requireOrExit(version.has_value(), "There is no version in the combined file");
    return *version;
}

std::string sourceText(double version, const std::vector<HandlerPlugin>& plugins) {
    std::string text = "HandlerMeta m(";
    appendGeneral(text, version);
    text += ");\n";
    appendHandlerStatements(text, plugins);
    text += "\nreturn m;\n";
    return text;
}

}  // namespace

void genh(const char* inputPath, const char* outputBase) {
    const std::string base = outputBase;
    const std::string inputNotOpened = "Could not open the file - " + std::string(inputPath);
    const char* const noObject = "JSON is not an object";
    File input = openForReading(inputPath);
    requireOrExit(input != nullptr, inputNotOpened);
    const File source = openForWriting((base + ".inl").c_str());
    requireOrExit(source != nullptr, "Could not open the INL output file");
    const File table = openForWriting((base + ".bin").c_str(), "wb");
    requireOrExit(table != nullptr, "Could not open the BIN output file");

    const json::Document parsed(readOrExit(std::move(input), inputNotOpened));
    requireOrExit(parsed.isValid(), "The given json file has errors inside");
    const json::Object document = json::objectOrExit(parsed.root(), noObject);
    const json::Object plugins = json::objectOrExit(json::at(document, "plugins"), noObject);
    const double version = versionOrExit(document);

    const std::vector<HandlerPlugin> handlers = readHandlers(plugins);
    writeAll(table.get(), handlerTable(toInt32(version), handlers));
    writeAll(source.get(), sourceText(version, handlers));
}

}  // namespace metagen

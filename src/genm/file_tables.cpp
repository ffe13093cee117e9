#include "genm/tables.h"

#include <utility>

#include "model/binary_table.h"

namespace metagen {

namespace {

void append(FileTable& table, std::string_view plugin, std::vector<std::string_view> parameters) {
    if (!parameters.empty()) table.push_back({plugin, std::move(parameters)});
}

void appendParameters(std::string& out, const std::vector<std::string_view>& parameters) {
    const char* opening = " {\"";
    for (const std::string_view parameter : parameters) {
        out += opening;
        out += parameter;
        out += '"';
        opening = ", \"";
    }
}

}  // namespace

FileTables collectFileTables(const MetaModel& model) {
    FileTables tables;
    for (const MetaPlugin& plugin : model) {
        std::vector<std::string_view> files;
        std::vector<std::string_view> inputFiles;
        for (const MetaParameter& parameter : plugin.parameters) {
            if ((parameter.flags & param_flag::fileBrowser) != 0) files.push_back(parameter.name);
            if ((parameter.flags & param_flag::loadModeOne) != 0) {
                inputFiles.push_back(parameter.name);
            }
        }
        append(tables.files, plugin.name, std::move(files));
        append(tables.inputFiles, plugin.name, std::move(inputFiles));
    }
    return tables;
}

// What closes a list takes the separator of its last item back. Deliberate: in an empty list it
// takes the opening brace instead, so that an empty table is "m.fileParams = " and a line "};".
void appendFileTable(std::string& out, std::string_view member, const FileTable& table) {
    out += member;
    out += " = ";
    const char* separator = "{";
    for (const auto& [plugin, parameters] : table) {
        out += separator;
        out += "\n\t{ \"";
        out += plugin;
        out += "\",";
        appendParameters(out, parameters);
        out += "}}";
        separator = ",";
    }
    out += "\n};\n";
}

void appendFileRecords(std::string& records, const FileTable& table) {
    appendCount(records, table.size());
    for (const auto& [plugin, parameters] : table) {
        appendText(records, plugin);
        appendCount(records, parameters.size());
        for (const std::string_view parameter : parameters) appendText(records, parameter);
    }
}

}  // namespace metagen

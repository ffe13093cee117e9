#include "genm/file_tables.h"

#include <utility>

namespace metagen {

namespace {

constexpr std::int32_t inputFileMode = 2;

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

FileTables collectFileTables(const CombinedModel& model) {
    FileTables tables;
    for (const auto& [plugin, entry] : model) {
        std::vector<std::string_view> files;
        std::vector<std::string_view> inputFiles;
        for (const auto& [name, parameter] : entry.params) {
            if (parameter.fileMode > 0) files.push_back(name);
            if (parameter.fileMode == inputFileMode) inputFiles.push_back(name);
        }
        append(tables.files, plugin, std::move(files));
        append(tables.inputFiles, plugin, std::move(inputFiles));
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

void writeFileTable(BinaryFile& file, const FileTable& table) {
    file.writeCount(table.size());
    for (const auto& [plugin, parameters] : table) {
        file.writeText(plugin);
        file.writeCount(parameters.size());
        for (const std::string_view parameter : parameters) file.writeText(parameter);
    }
}

}  // namespace metagen

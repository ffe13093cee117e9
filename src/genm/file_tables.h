// Which parameters of which plugins name files, and which of those name input files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/meta_model.h"

namespace metagen {

/// A plugin that has such parameters, and their names, ascending.
struct PluginFiles {
    std::string_view plugin;
    std::vector<std::string_view> parameters;
};

/// In ascending order of the plugins. All names are the document's.
using FileTable = std::vector<PluginFiles>;

struct FileTables {
    FileTable files;       ///< parameters with a file browser
    FileTable inputFiles;  ///< those of them with the load mode "1"
};

/// The tables of all plugins. Plugins without such parameters do not appear.
FileTables collectFileTables(const MetaModel& model);

/// Appends the assignment of a table to the member ("m.fileParams") and a line feed.
void appendFileTable(std::string& out, std::string_view member, const FileTable& table);

/// Appends the plugin count, and for each plugin its name, a count and the parameter names.
void appendFileRecords(std::string& records, const FileTable& table);

}  // namespace metagen

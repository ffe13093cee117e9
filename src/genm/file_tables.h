// Which parameters of which plugins name files, and which of those name input files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/combined_model.h"
#include "model/obstream.h"

namespace metagen {

/// Parameter names by plugin name, both ascending and borrowed from the document.
using FileTable = NamedEntries<std::vector<std::string_view>>;

struct FileTables {
    FileTable files;       ///< parameters with a file mode of 1 or 2
    FileTable inputFiles;  ///< those with a file mode of 2
};

/// The tables of all plugins. Plugins without such parameters do not appear.
FileTables collectFileTables(const CombinedModel& model);

/// Appends the assignment of a table to the member ("m.fileParams") and a line feed.
void appendFileTable(std::string& out, std::string_view member, const FileTable& table);

/// Writes the plugin count, and for each plugin its name, a count and the parameter names.
void writeFileTable(BinaryFile& file, const FileTable& table);

}  // namespace metagen

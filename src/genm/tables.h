// The sections of genm's tables, as source text and as binary records: the registrations of plugins
// and their parameters, which of these name files, and how they scale with the scene's units.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "genm/value_arrays.h"
#include "model/meta_model.h"

namespace metagen {

/// Appends the registrations to both tables in one pass, which reads every default once: to the
/// source text a statement and an empty line for each plugin, to the binary table a record for
/// each. The arrays of default values go to the groups. A default that can't be expressed ends the
/// process or throws (see readTypedDefault).
void appendRegistrations(std::string& source, std::string& table, ValueArrays& groups,
                         const MetaModel& model);

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

/// Parameters by their names by their plugins' names, which end at a NUL; only parameters whose
/// unit is not 0, and plugins that have one. Borrows from the model.
using ScalingTable = std::map<std::string_view, std::map<std::string_view, const Scaling*>>;

ScalingTable collectScalingTable(const MetaModel& model);

/// Whether the generated source has a word for the unit of a scaling that is in the table, and for
/// the operation of a condition.
bool hasKnownUnit(const Scaling& scaling);
bool hasKnownOperation(const ScaleCondition& condition);

/// The descriptor of what a condition compares the parameter with; none for a type that can't be
/// compared: any but float, integer and bool.
std::optional<std::uint32_t> conditionDescriptor(const MetaParameter& parameter);

/// Appends the records of the table. The value of a condition is written only when the document
/// gives a number for it, and by the type of the parameter that the condition names: one that is
/// missing throws std::out_of_range "invalid map<K, T> key", one of another type than float,
/// integer or bool, or a list, prints a message on standard output and ends the process with status
/// -1.
void appendScalingRecords(std::string& records, const ScalingTable& table, const MetaModel& model);

/// Appends the assignment of the table; nothing when it is empty. Ends the process as
/// appendScalingRecords does, and also for another unit or operation than 1.
void appendScalingTable(std::string& out, const ScalingTable& table, const MetaModel& model);

}  // namespace metagen

// How parameters scale with the scene's units, some only under conditions on other parameters of
// their plugin.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "model/meta_model.h"

namespace metagen {

/// Parameters by their names by their plugins' names, which end at a NUL; only parameters whose
/// unit is not 0, and plugins that have one. Borrows from the model.
using ScalingTable = std::map<std::string_view, std::map<std::string_view, const Scaling*>>;

ScalingTable collectScalingTable(const MetaModel& model);

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

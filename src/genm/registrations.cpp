#include "genm/registrations.h"

#include <utility>

#include "genm/default_record.h"
#include "support/number_text.h"

namespace metagen {

namespace {

/// Makes room for what most parameters take: texts of many megabytes that grow in steps need
/// memory, and a copy, for each.
void reserveFor(Registrations& out, const CombinedModel& model) {
    constexpr std::size_t usualSource = 88;
    constexpr std::size_t usualRecord = 64;
    std::size_t parameters = 0;
    for (const auto& [name, plugin] : model) parameters += plugin.params.size();
    out.source.reserve(parameters * usualSource);
    std::string recordRoom;
    recordRoom.reserve(parameters * usualRecord);
    out.records.str(std::move(recordRoom));
}

void addParameter(Registrations& out, ValueArrays& groups, std::string_view name,
                  const ParamEntry& parameter) {
    DefaultRecord defaultValue = readDefault(parameter);
    out.records.writeText(name);
    out.records.writeText(*parameter.typeName);
    out.records.writeU32(parameter.flags);
    writeDefault(out.records, defaultValue);

    out.source += "\n\t.add(\"";
    out.source += name;
    out.source += "\", \"";
    out.source += *parameter.typeName;
    out.source += "\", ";
    appendInteger(out.source, parameter.flags);
    out.source += ", ";
    appendDefault(out.source, std::move(defaultValue), groups);
    out.source += ')';
}

void addPlugin(Registrations& out, ValueArrays& groups, std::string_view name,
               const PluginEntry& plugin) {
    out.records.writeText(name);
    // Without a category the literal of an empty text, two double quotes: deliberate, hosts tell
    // it from an empty category.
    out.records.writeText(plugin.category != nullptr ? std::string_view(*plugin.category) : "\"\"");
    out.records.writeCount(plugin.params.size());

    out.source += "m.add(\"";
    out.source += name;
    out.source += "\", \"";
    if (plugin.category != nullptr) out.source += *plugin.category;
    out.source += "\")";
    for (const auto& [parameterName, parameter] : plugin.params) {
        addParameter(out, groups, parameterName, parameter);
    }
    out.source += ";\n\n";
}

}  // namespace

void fillRegistrations(Registrations& out, ValueArrays& groups, const CombinedModel& model) {
    reserveFor(out, model);
    for (const auto& [name, plugin] : model) addPlugin(out, groups, name, plugin);
}

}  // namespace metagen

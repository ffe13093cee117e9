#include "genm/registrations.h"

#include "genm/default_record.h"
#include "support/number_text.h"

namespace metagen {

namespace {

void appendParameter(std::string& out, std::string_view name, const ParamEntry& parameter,
                     ValueArrays& groups) {
    out += "\n\t.add(\"";
    out += name;
    out += "\", \"";
    out += *parameter.typeName;
    out += "\", ";
    appendInteger(out, parameter.flags);
    out += ", ";
    appendDefault(out, readDefault(parameter), groups);
    out += ')';
}

void writeParameter(BinaryFile& file, std::string_view name, const ParamEntry& parameter) {
    file.writeText(name);
    file.writeText(*parameter.typeName);
    file.writeU32(parameter.flags);
    writeDefault(file, readDefault(parameter));
}

}  // namespace

void appendRegistrations(std::string& out, const CombinedModel& model, ValueArrays& groups) {
    for (const auto& [plugin, entry] : model) {
        out += "m.add(\"";
        out += plugin;
        out += "\", \"";
        if (entry.category != nullptr) out += *entry.category;
        out += "\")";
        for (const auto& [name, parameter] : entry.params) {
            appendParameter(out, name, parameter, groups);
        }
        out += ";\n\n";
    }
}

void writeRegistrations(BinaryFile& file, const CombinedModel& model) {
    for (const auto& [plugin, entry] : model) {
        file.writeText(plugin);
        // Without a category the literal of an empty text, two double quotes: deliberate, hosts
        // tell it from an empty category.
        file.writeText(entry.category != nullptr ? std::string_view(*entry.category) : "\"\"");
        file.writeCount(entry.params.size());
        for (const auto& [name, parameter] : entry.params) writeParameter(file, name, parameter);
    }
}

}  // namespace metagen

#include "genm/tables.h"

#include "genm/default_record.h"
#include "model/binary_table.h"
#include "support/numbers.h"

namespace metagen {

namespace {

class RegistrationWriter {
public:
    RegistrationWriter(std::string& sourceText, std::string& binaryTable, ValueArrays& valueArrays)
        : source(sourceText), table(binaryTable), groups(valueArrays) {}

    void append(const MetaPlugin& plugin) {
        appendText(table, plugin.name);
        // Without a category the literal of an empty text, two double quotes: deliberate, hosts
        // tell it from an empty category.
        appendText(table, plugin.category.value_or("\"\""));
        appendCount(table, plugin.parameters.size());

        source.append("m.add(\"").append(plugin.name);
        source.append("\", \"").append(plugin.category.value_or("")).append("\")");
        for (const MetaParameter& parameter : plugin.parameters) append(parameter);
        source += ";\n\n";
    }

private:
    void append(const MetaParameter& parameter) {
        const DefaultRecord defaultValue = readDefault(parameter, values);
        appendText(table, parameter.name);
        appendText(table, parameter.typeName);
        appendU32(table, parameter.flags);
        appendDefaultRecord(table, defaultValue);

        source.append("\n\t.add(\"").append(parameter.name);
        source.append("\", \"").append(parameter.typeName).append("\", ");
        appendInteger(source, parameter.flags);
        source += ", ";
        appendDefault(source, defaultValue, groups);
        source += ')';
    }

    std::string& source;
    std::string& table;
    ValueArrays& groups;
    DefaultValues values;  ///< of the default at hand
};

}  // namespace

void appendRegistrations(std::string& source, std::string& table, ValueArrays& groups,
                         const MetaModel& model) {
    RegistrationWriter writer(source, table, groups);
    for (const MetaPlugin& plugin : model) writer.append(plugin);
}

}  // namespace metagen

#include "genh/genh.h"

#include "model/binary_table.h"
#include "support/numbers.h"

namespace metagen {

namespace {

void appendParameter(std::string& out, const HandlerParameter& parameter) {
    out.append("\t.add(\"").append(parameter.name).append("\",");
    out.append(" HandlerTypes::").append(parameter.kind->hostMember);
    if (parameter.componentCount != 0) out += ", ";
    appendFloatList(out, parameter.defaultValue());
    out += ")\n";
}

}  // namespace

void appendHandlerStatements(std::string& out, const std::vector<HandlerPlugin>& plugins) {
    for (const auto& [name, parameters] : plugins) {
        out.append("\nm.add(\"").append(name).append("\")\n");
        for (const HandlerParameter& parameter : parameters) appendParameter(out, parameter);
        out.back() = ';';  // deliberately in place of the last line feed: it ends the statement
        out += '\n';
    }
}

std::string handlerTable(std::int32_t version, const std::vector<HandlerPlugin>& plugins) {
    std::string table = "HDLR";
    appendI32(table, version);
    appendCount(table, plugins.size());
    for (const auto& [name, parameters] : plugins) {
        appendText(table, name);
        appendCount(table, parameters.size());
        for (const HandlerParameter& parameter : parameters) {
            appendText(table, parameter.name);
            appendU32(table, parameter.kind->number);
            appendCount(table, parameter.componentCount);
            appendNumbers(table, parameter.defaultValue());
        }
    }
    return table;
}

}  // namespace metagen

#include "genh/handler_tables.h"

#include <string_view>

#include "genh/handler.h"
#include "support/number_text.h"
#include "support/process_end.h"

namespace metagen {

namespace {

void reportMissingKind(std::string_view plugin, std::string_view param) {
    std::string message = "Missing ";
    message.append(plugin).append("::").append(param).append("_color or float");
    print(message);
}

std::string_view memberName(HandlerKind kind) {
    switch (kind) {
        case HandlerKind::floatNumber: return "Float";
        case HandlerKind::color: return "Color";
        case HandlerKind::duplicate: break;
    }
    return "Duplicate";
}

void appendArguments(std::string& out, const Handler& handler) {
    out.append(" HandlerTypes::").append(memberName(handler.kind));
    if (handler.count != 0) out += ", ";
    appendFloatList(out, handler.arguments());
    out += ')';
}

void appendStatement(std::string& out, std::string_view plugin, const PluginEntry& entry) {
    out.append("m.add(\"").append(plugin).append("\")\n");
    for (const auto& [name, param] : entry.params) {
        out.append("\t.add(\"").append(name).append("\",");
        if (const auto handler = handlerOf(param)) {
            appendArguments(out, *handler);
        } else {
            reportMissingKind(plugin, name);
        }
        out += '\n';
    }
    out.back() = ';';  // deliberately in place of the last line feed: it ends the statement
}

void writeHandler(BinaryFile& out, const Handler& handler) {
    out.writeU32(static_cast<std::uint32_t>(handler.kind));
    out.writeCount(handler.count);
    out.writeBytes(handler.arguments());
}

void writePlugin(BinaryFile& out, std::string_view plugin, const PluginEntry& entry) {
    out.writeText(plugin);
    out.writeCount(entry.params.size());
    for (const auto& [name, param] : entry.params) {
        out.writeText(name);
        if (const auto handler = handlerOf(param)) {
            writeHandler(out, *handler);
        } else {
            reportMissingKind(plugin, name);
        }
    }
}

}  // namespace

void appendHandlerStatements(std::string& out, const CombinedModel& model) {
    for (const auto& [name, entry] : model) {
        out += '\n';
        appendStatement(out, name, entry);
        out += '\n';
    }
}

void writeHandlerTable(BinaryFile& out, std::int32_t version, const CombinedModel& model) {
    out.writeTag("HDLR");
    out.writeI32(version);
    out.writeCount(model.size());
    for (const auto& [name, entry] : model) writePlugin(out, name, entry);
}

}  // namespace metagen

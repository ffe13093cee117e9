#include "metadata/base_document.h"

#include "metadata/default_value_text.h"
#include "metadata/parameter_type.h"
#include "support/escaped_text.h"

namespace metagen {

namespace {

/// Appends the members of an object, each as its key, unescaped, and what appendValue appends.
template <typename Members, typename AppendValue>
void appendObject(std::string& out, const Members& members, const AppendValue& appendValue) {
    out += '{';
    const char* separator = "";
    for (const auto& [key, value] : members) {
        out += separator;
        out += '"';
        out += key;  // deliberately as it is: consumers know the SDK's names by their bytes
        out += "\":";
        appendValue(out, value);
        separator = ",";
    }
    out += '}';
}

void appendDefault(std::string& out, const std::string& text) {
    out += ",\"defaultValue\":\"";
    appendEscaped(out, text);
    out += '"';
}

void appendPlugin(std::string& out, const PluginRecord& plugin) {
    out += "{\"type\":";
    if (plugin.category) {
        out += '"';
        out += *plugin.category;
        out += '"';
    } else {
        out += "null";
    }
    out += ",\"params\":";
    appendObject(out, plugin.parameters, appendParameter);
    out += '}';
}

void appendSingle(std::string& out, const ParameterRecord& parameter) {
    out += "{\"type\":\"";
    out += typeName(parameter.code);
    out += '"';
    const std::string text = defaultValueText(parameter.defaultValue);
    if (text != "\"\"" && text != "none") appendDefault(out, text);
    out += '}';
}

void appendList(std::string& out, const ParameterRecord& parameter) {
    out += R"({"type":"list","listType":")";
    out += typeName(parameter.code);
    out += '"';
    if (listSize(parameter.defaultValue) > 0) {
        appendDefault(out, defaultValueText(parameter.defaultValue));
    }
    out += '}';
}

}  // namespace

std::string baseDocument(const LiveMetadata& metadata) {
    std::string document = "{\"plugins\":";
    appendObject(document, metadata, appendPlugin);
    document += '}';
    return document;
}

void appendParameter(std::string& out, const ParameterRecord& parameter) {
    if (parameter.isList) {
        appendList(out, parameter);
    } else {
        appendSingle(out, parameter);
    }
}

}  // namespace metagen

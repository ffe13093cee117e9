#include "metadata/base_document.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "metadata/parameter_type.h"
#include "support/escaped_text.h"
#include "support/text_file.h"

namespace metagen {

namespace {

std::int32_t codeOf(const NamedParameter& parameter) { return parameter.record.code; }

}  // namespace

void BaseDocument::add(std::string className, const PluginRecord& plugin) {
    const auto [place, isNew] = plugins.try_emplace(std::move(className));
    if (!isNew) return;
    const auto nameless = std::ranges::find_if_not(plugin.parameters, hasTypeName, codeOf);
    if (nameless != plugin.parameters.end()) {
        namelessCode = nameless->record.code;
        return;
    }
    objectBuffer.clear();
    appendPlugin(objectBuffer, plugin, appendParameter, defaultTextBuffer);
    place->second = objectBuffer;  // a copy, which takes no more room than the text needs
}

template <typename Append>
void BaseDocument::forEachPiece(const Append& append) const {
    if (namelessCode) static_cast<void>(typeName(*namelessCode));  // ends the process
    const char* separator = "{\"plugins\":{\"";
    for (const auto& [name, object] : plugins) {
        append(separator);
        append(name);  // deliberately as it is: consumers know the SDK's names by their bytes
        append("\":");
        append(object);
        separator = ",\"";
    }
    append(plugins.empty() ? "{\"plugins\":{}}" : "}}");
}

void BaseDocument::write(std::FILE* file) const {
    PieceWriter writer(file);
    forEachPiece([&writer](std::string_view piece) { writer.append(piece); });
    writer.finish();
}

std::string BaseDocument::text() const {
    std::size_t length = 0;
    forEachPiece([&length](std::string_view piece) { length += piece.size(); });
    std::string document;
    document.reserve(length);
    forEachPiece([&document](std::string_view piece) { document += piece; });
    return document;
}

BaseDocument readBaseDocument(const Renderer& renderer) {
    BaseDocument document;
    visitPlugins(renderer, [&document](std::string className, const PluginRecord& plugin) {
        document.add(std::move(className), plugin);
    });
    return document;
}

void appendPlugin(std::string& out, const PluginRecord& plugin, ParameterWriter appendOne,
                  std::string& defaultTextBuffer) {
    out += "{\"type\":";
    if (plugin.category) {
        out += '"';
        out += *plugin.category;
        out += '"';
    } else {
        out += "null";
    }
    out += ",\"params\":{";
    const char* separator = "\"";
    for (const auto& [name, parameter] : plugin.parameters) {
        out += separator;
        out += name;  // deliberately as it is, like the names of classes
        out += "\":";
        appendOne(out, describe(parameter, defaultTextBuffer));
        separator = ",\"";
    }
    out += "}}";
}

void appendParameter(std::string& out, const ParameterDescription& parameter) {
    out += "{\"type\":\"";
    out += parameter.type;
    if (!parameter.listType.empty()) {
        out += "\",\"listType\":\"";
        out += parameter.listType;
    }
    if (parameter.defaultText) {
        out += "\",\"defaultValue\":\"";
        appendEscaped(out, *parameter.defaultText);
    }
    out += "\"}";
}

}  // namespace metagen

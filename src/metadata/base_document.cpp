#include "metadata/base_document.h"

#include <span>
#include <string_view>
#include <utility>

#include "sdk/parameter_type.h"
#include "support/text_file.h"

namespace metagen {

BaseDocument::BaseDocument(const Renderer& renderer) {
    for (std::string& name : renderer.pluginClassNames()) {
        const PluginObject object = readPluginObject(renderer, name);
        const std::size_t count = plugins.size();
        const auto place = plugins.try_emplace(plugins.end(), std::move(name));  // mostly in order
        if (plugins.size() == count) continue;
        // Side by side: the system's allocator searches long for one block for each.
        const std::span<const char> kept = texts.keep(std::span<const char>(object.text));
        place->second = {kept.data(), kept.size()};
        if (object.namelessCode) namelessCode = object.namelessCode;
    }
}

template <typename Append>
void BaseDocument::forEachPiece(const Append& append) const {
    if (namelessCode) static_cast<void>(typeName(*namelessCode));  // ends the process
    std::string_view separator = "{\"plugins\":{\"";
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
    forEachPiece([file](std::string_view piece) { writeAll(file, piece); });
}

std::string BaseDocument::text() const {
    std::size_t length = 0;
    forEachPiece([&length](std::string_view piece) { length += piece.size(); });
    std::string document;
    reserveText(document, length);
    forEachPiece([&document](std::string_view piece) { document += piece; });
    return document;
}

}  // namespace metagen

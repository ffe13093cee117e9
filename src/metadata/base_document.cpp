#include "metadata/base_document.h"

#include <span>
#include <utility>

#include "metadata/key_order.h"
#include "sdk/parameter_type.h"
#include "support/text_file.h"

namespace metagen {

BaseDocument::BaseDocument(const Renderer& renderer) {
    std::vector<std::string> names = renderer.pluginClassNames();
    const std::vector<std::size_t> places = placesInOrder(names);
    plugins.resize(names.size());
    PluginReader reader(renderer);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string_view object = reader.read(names[i]);
        Plugin& plugin = plugins[places[i]];
        if (!plugin.object.empty()) continue;
        // Side by side: the system's allocator searches long for one block for each.
        const std::span<const char> kept = texts.keep(std::span<const char>(object));
        plugin = {std::move(names[i]), {kept.data(), kept.size()}};
        if (reader.namelessCode()) namelessCode = reader.namelessCode();
    }
    std::erase_if(plugins, [](const Plugin& plugin) { return plugin.object.empty(); });
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
    constexpr std::size_t writtenAtOnce = std::size_t{1} << 16U;  // the C library's own are 4 KB
    std::string block;
    forEachPiece([file, &block](std::string_view piece) {
        block += piece;
        if (block.size() < writtenAtOnce) return;
        writeAll(file, block);
        block.clear();
    });
    writeAll(file, block);
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

#include "combine/documents.h"

#include <optional>
#include <string>
#include <utility>

#include "metadata/base_document.h"
#include "metadata/live_metadata.h"
#include "support/json_file.h"
#include "support/process_end.h"

namespace metagen {

json::Value& readStrippedDocument(File file, const char* path) {
    return json::parseFileOrExit(std::move(file), "Could not open the file - " + std::string(path),
                                 "the given json file has errors inside");
}

LiveDocument readLiveDocument(const Renderer& renderer, const json::Value& stripped) {
    LiveDocumentBuilder document{NamedPlugins(stripped)};
    visitPlugins(renderer, [&document](std::string className, PluginRecord plugin) {
        document.add(std::move(className), std::move(plugin));
    });
    if (document.isFaithful()) return document.take();
    // What such names make of the document, the parser has to tell.
    return {parseLiveDocument(readBaseDocument(renderer).text()), {}};
}

json::Value& parseLiveDocument(std::string_view text) {
    std::optional<json::Value> document = json::parse(text);
    requireOrExit(document.has_value(), "error in the dumped json");
    return json::keepToProcessEnd(std::move(*document));
}

json::Object& strippedObjectOrExit(json::Value& stripped) {
    requireOrExit(stripped.is<json::Object>(), "stripped json is not an object");
    return json::asObject(stripped);
}

json::Object& liveObjectOrExit(json::Value& live) {
    requireOrExit(live.is<json::Object>(), "dumped json is not an object");
    return json::asObject(live);
}

}  // namespace metagen

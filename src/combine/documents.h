// The documents that `combine` begins with: the stripped one from its file and the live one, which
// is the base document of the installed SDK, made in memory. Their trees stay to the end of the
// process.
#pragma once

#include <string_view>

#include "combine/live_document.h"
#include "sdk/renderer.h"
#include "support/json.h"
#include "support/text_file.h"

namespace metagen {

/// Parses the stripped document and closes its file; the path is for the message. Like the others
/// here it ends the process with status 1 and a message on standard error when that fails.
json::Value& readStrippedDocument(File file, const char* path);

/// Everything that the renderer knows, as the base document would have it, to be merged with the
/// stripped document.
LiveDocument readLiveDocument(const Renderer& renderer, const json::Value& stripped);

/// Parses the text of the live document. A name that needs escapes makes it unreadable.
json::Value& parseLiveDocument(std::string_view text);

/// The stripped document's members, then the live one's, must be there to be merged.
json::Object& strippedObjectOrExit(json::Value& stripped);
json::Object& liveObjectOrExit(json::Value& live);

}  // namespace metagen

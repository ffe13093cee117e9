// The live document: what the base document of the installed SDK says, ready to be merged with.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "combine/combined_document.h"
#include "metadata/key_order.h"
#include "metadata/live_metadata.h"
#include "support/json.h"

namespace metagen {

/// A stripped document names some plugins of the SDK's. Only these can change in the merge and have
/// to be looked at after it. The others are turned into text at once, plugin by plugin, which takes
/// a fraction of the memory of a tree, and of the time.
struct LiveDocument {
    /// With the plugins that the stripped document names; there to the end of the process.
    json::Value& tree;
    PluginTexts otherPlugins;
};

/// Which plugins of a live document a stripped one names: those in its object "plugins"; none
/// without it; all when it is no object and so stands against the live plugins as a whole.
class NamedPlugins {
public:
    /// Borrows the stripped document.
    explicit NamedPlugins(const json::Value& stripped);

    [[nodiscard]] bool contains(const std::string& plugin) const;

private:
    const json::Value* plugins = nullptr;
};

/// Makes the document that parsing the base document would give, without the text in between.
class LiveDocumentBuilder {
public:
    explicit LiveDocumentBuilder(NamedPlugins namedPlugins) : wanted(namedPlugins) {}

    /// Adds a class, unless there is one with an equal name in the combined order.
    void add(std::string className, PluginRecord plugin);

    /// Whether all names stand for themselves in JSON. The base document doesn't escape them, so
    /// with any other name its text says something else than this document, or nothing at all.
    [[nodiscard]] bool isFaithful() const { return faithful; }

    /// The finished document. Ends the process on a type code without a name (see `typeName`).
    LiveDocument take();

private:
    NamedPlugins wanted;
    json::Object plugins;
    PluginTexts otherPlugins;
    std::set<std::string_view, CombinedKeyLess> names;  ///< the keys of both
    std::optional<std::int32_t> namelessCode;
    bool faithful = true;
    std::string pluginBuffer;
    std::string defaultTextBuffer;
};

}  // namespace metagen

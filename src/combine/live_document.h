// The live document: what the base document of the installed SDK says, as a tree.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "metadata/key_order.h"
#include "metadata/live_metadata.h"
#include "support/json.h"

namespace metagen {

/// Makes the tree that parsing the base document would give, without the text in between.
class LiveDocument {
public:
    /// Adds a class, unless there is one with an equal name in the combined order.
    void add(std::string className, PluginRecord plugin);

    /// Whether all names stand for themselves in JSON. The base document doesn't escape them, so
    /// with any other name its text says something else than this tree, or nothing at all.
    [[nodiscard]] bool isFaithful() const { return faithful; }

    /// The finished tree. Ends the process on a type code without a name (see `typeName`).
    json::Value take();

private:
    json::Object plugins;
    std::set<std::string_view, CombinedKeyLess> names;  ///< the keys of plugins
    std::optional<std::int32_t> namelessCode;
    bool faithful = true;
    std::string buffer;
};

}  // namespace metagen

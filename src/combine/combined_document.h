// The writer of the combined document. Its layout is an interface: no white space, no line break.
#pragma once

#include <cstddef>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "support/json.h"

namespace metagen {

/// Plugins by their names, each as the text of its object in a combined document.
using PluginTexts = std::map<std::string, std::string>;

/// The text of a combined document. Objects in objects have their members in the combined key order
/// (see `CombinedKeyLess`); of keys that are equal in it only the first in byte order is written.
/// Objects in arrays are written as the JSON library writes them, all members in byte order.
class CombinedDocument {
public:
    /// Of a document whose object "plugins" has the further plugins as members, too. It must be
    /// there unless there are none, and must not have any of them itself. They are borrowed.
    explicit CombinedDocument(const json::Object& document, const PluginTexts& furtherPlugins = {});

    void write(std::FILE* file) const;

    /// The whole document as one text.
    [[nodiscard]] std::string text() const;

private:
    /// Calls append(piece) for each piece of the document.
    template <typename Append>
    void forEachPiece(const Append& append) const;

    /// A further plugin that stands before the given place of the text.
    struct Insertion {
        std::size_t place;
        const std::string* plugin;
    };

    class Writer;

    std::string ownText;  ///< of all but the further plugins
    std::vector<Insertion> insertions;
};

}  // namespace metagen

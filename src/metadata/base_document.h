// The base document: everything that a renderer knows of its plugin classes. Its layout is an
// interface: no white space, no line break, classes and parameters in the combined key order.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <string>

#include "metadata/key_order.h"
#include "sdk/renderer.h"

namespace metagen {

class BaseDocument {
public:
    /// Asks about every class, in the SDK's order; of classes with equal names in the combined
    /// order the first is kept. Ends and throws like `readPluginObject`.
    explicit BaseDocument(const Renderer& renderer);

    /// Writes the document. Ends the process on a type code without a name (see `typeName`): only
    /// now, so that what is wrong with a later class comes first.
    void write(std::FILE* file) const;

    /// The document as one text; ends the process like `write`.
    [[nodiscard]] std::string text() const;

private:
    /// Calls append(piece) for each piece of the document.
    template <typename Append>
    void forEachPiece(const Append& append) const;

    std::map<std::string, std::string, CombinedKeyLess> plugins;  ///< the object of each class
    std::optional<std::int32_t> namelessCode;
};

}  // namespace metagen

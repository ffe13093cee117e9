// The base document: everything that a renderer knows of its plugin classes. Its layout is an
// interface: no white space, no line break, classes and parameters in the combined key order.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "metadata/key_order.h"
#include "sdk/renderer.h"
#include "support/memory.h"

namespace metagen {

/// What a plugin's category bits come to.
struct CategoryResolution {
    /// The category's name; none for a plugin without category and for a category without name.
    std::optional<std::string_view> name;
    /// The bits can't be reconciled.
    bool conflict = false;
    /// After a conflict, the bits that reconciling left; may be none.
    std::uint32_t conflictingBits = 0;
};

/// The name of a category code, or none.
std::optional<std::string_view> categoryName(int code);

/// Reconciles the category bits (bit n stands for category code n; bits from 20 up don't count).
CategoryResolution resolveCategory(std::uint64_t bits);

struct PluginObject {
    std::string text;
    /// A type code that the vocabulary has no name for: the document can't be written.
    std::optional<std::int32_t> namelessCode = {};
};

/// Asks the renderer about the class: its parameters, then its category. Names stand unescaped, the
/// parameters in the combined order; of names that are equal in it the first is kept. Throws
/// std::invalid_argument for a default value that its guide can't describe. A class whose
/// categories can't be reconciled is reported on standard output and ends the process with
/// status 1.
PluginObject readPluginObject(const Renderer& renderer, const std::string& className);

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

    Arena texts;
    std::map<std::string, std::string_view, CombinedKeyLess> plugins;  ///< the object of each class
    std::optional<std::int32_t> namelessCode;
};

}  // namespace metagen

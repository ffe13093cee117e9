// The base document: everything that a renderer knows of its plugin classes. Its layout is an
// interface: no white space, no line break, classes and parameters in the combined key order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// Reconciles the category bits (bit n stands for category code n; bits from 20 up don't count).
CategoryResolution resolveCategory(std::uint64_t bits);

/// Asks the renderer about plugin classes, one after the other.
class PluginReader {
public:
    /// Borrows the renderer.
    explicit PluginReader(const Renderer& sdkRenderer) : renderer(sdkRenderer) {}

    /// The class's object; it stands until the next class is read. Asks about the parameters, then
    /// about the category. Names stand unescaped, the parameters in the combined order; of names
    /// that are equal in it the first is kept. Throws std::invalid_argument for a default value
    /// that its guide can't describe. A class whose categories can't be reconciled is reported on
    /// standard output and ends the process with status 1.
    std::string_view read(const std::string& className);

    /// A type code of that class that the vocabulary has no name for: a document that has the class
    /// can't be written.
    [[nodiscard]] std::optional<std::int32_t> namelessCode() const { return nameless; }

private:
    /// Of the texts; empty for what is not recorded.
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;

        [[nodiscard]] bool isEmpty() const { return begin == end; }
    };

    void readParameters();
    Range readMember(const std::string& name);
    void appendParameter(Definition definition, std::int32_t code);
    void appendDefault(const QyraValue& value, bool isList);
    void appendCategory();

    const Renderer& renderer;
    std::optional<std::int32_t> nameless;
    // Of the class at hand, here to keep their memory from one to the next:
    std::string typeText;
    std::string texts;           ///< of its members, in the order in which they were read
    std::vector<Range> members;  ///< by their places in the combined order
    std::string defaultText;     ///< of the parameter at hand
    std::string object;
};

class BaseDocument {
public:
    /// Asks about every class, in the SDK's order; of classes with equal names in the combined
    /// order the first is kept. Ends and throws like `PluginReader`.
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

    struct Plugin {
        std::string name;
        std::string_view object;
    };

    Arena texts;
    std::vector<Plugin> plugins;  ///< in the combined order
    std::optional<std::int32_t> namelessCode;
};

}  // namespace metagen

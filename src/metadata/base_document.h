// The writer of the base document. Its layout is an interface: no white space, no line break, the
// members in the combined key order.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <string>

#include "metadata/key_order.h"
#include "metadata/live_metadata.h"
#include "metadata/parameter_description.h"

namespace metagen {

/// The base document while the SDK is asked. A class is turned into text as soon as it is known,
/// so that the document is all that is held in memory.
class BaseDocument {
public:
    /// Adds a class, unless there is one with an equal name in the combined order.
    void add(std::string className, const PluginRecord& plugin);

    /// Writes the whole document. Ends the process on a type code without a name (see `typeName`)
    /// in any class that was added: only now, so that what is wrong with a later class comes first.
    void write(std::FILE* file) const;

    /// The whole document as one text; ends the process like `write`.
    [[nodiscard]] std::string text() const;

private:
    /// Calls append(piece) for each piece of the document.
    template <typename Append>
    void forEachPiece(const Append& append) const;

    std::map<std::string, std::string, CombinedKeyLess> plugins;  ///< the object of each class
    std::string objectBuffer;
    std::string defaultTextBuffer;
    std::optional<std::int32_t> namelessCode;
};

/// Asks the renderer about everything. Ends and throws like `visitPlugins`.
BaseDocument readBaseDocument(const Renderer& renderer);

/// Appends the object of a parameter.
using ParameterWriter = void (*)(std::string& out, const ParameterDescription& parameter);

/// Appends the object of a plugin: its category and its parameters, each by the writer, which is
/// where the base and the combined document differ. The buffer can serve for many plugins.
void appendPlugin(std::string& out, const PluginRecord& plugin, ParameterWriter appendOne,
                  std::string& defaultTextBuffer);

/// The writer of the base document.
void appendParameter(std::string& out, const ParameterDescription& parameter);

}  // namespace metagen

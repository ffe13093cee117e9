// Reads a catalogue from its JSON text, and each of its parts; README.md documents the format. All
// throw CatalogueError, whose text begins with the line of a syntax error or with the place of what
// is wrong.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "replay_sdk/catalogue.h"
#include "replay_sdk/catalogue_node.h"
#include "replay_sdk/list_text.h"

namespace metagen::replay {

/// The catalogue that the text tells.
std::unique_ptr<Catalogue> readCatalogue(std::string text);

/// The class that the member tells, without its parameters; typeId is 0 when it tells none.
PluginClass readClass(const CatalogueNode& member);

/// Appends the class's parameters to the catalogue and fills in where they stand, and what the
/// class tells about their names.
void readParameters(const CatalogueNode& member, PluginClass& owner, Catalogue& catalogue,
                    const InstanceNaming& instanceOf);

/// The parameter that the object tells, without its name: the base document's form, or those that
/// say more.
Parameter readParameter(const CatalogueNode& node, const InstanceNaming& instanceOf);

/// The value of an object {"kind": K, "value": V}, with K a name or any 32-bit number.
DefaultValue readTaggedDefault(const CatalogueNode& node);

/// The plugin instance that the object tells and its id; the classes must be complete.
std::pair<std::int64_t, PluginInstance> readInstance(const CatalogueNode& node,
                                                     const Catalogue& catalogue);

/// A text vector's names: null, or an array of names and nulls. A name that isKnown refuses fails.
template <typename Predicate>
NameList readNames(const CatalogueNode& node, Predicate isKnown) {
    if (node.isNull()) return {NameList::Form::null, {}};
    NameList list{NameList::Form::given, {}};
    node.forEachElement([&](const CatalogueNode& element) {
        if (element.isNull()) {
            list.names.emplace_back(std::nullopt);
            return;
        }
        if (!isKnown(element.text())) element.fail("unknown name \"" + element.text() + '"');
        list.names.emplace_back(element.text());
    });
    return list;
}

}  // namespace metagen::replay

// One plugin class of a catalogue: what the object says of the class, and its parameters.
#pragma once

#include "replay_sdk/catalogue.h"
#include "replay_sdk/catalogue_node.h"
#include "replay_sdk/list_text.h"

namespace metagen::replay {

/// The class that the member tells, without its parameters; typeId is 0 when it tells none.
PluginClass readClass(const CatalogueNode& member);

/// Appends the class's parameters to the catalogue and fills in where they stand, and what the
/// class tells about their names.
void readParameters(const CatalogueNode& member, PluginClass& owner, Catalogue& catalogue,
                    const InstanceNaming& instanceOf);

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

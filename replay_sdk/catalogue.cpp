#include "replay_sdk/catalogue.h"

#include <algorithm>

namespace metagen::replay {

namespace {

/// The element with this name among elements that ascend by name; null when there is none.
template <typename Iterator>
auto findNamed(Iterator first, Iterator last, std::string_view name) -> decltype(&*first) {
    const auto found =
        std::lower_bound(first, last, name, [](const auto& element, std::string_view wanted) {
            return std::string_view(element.name) < wanted;
        });
    return found != last && found->name == name ? &*found : nullptr;
}

template <typename Map, typename Key>
const PluginClass* findIn(const Map& classes, const Key& key) {
    const auto found = classes.find(key);
    return found == classes.end() ? nullptr : found->second;
}

}  // namespace

const PluginClass* Catalogue::classNamed(std::string_view name) const {
    return findNamed(classes.begin(), classes.end(), name);
}

const PluginClass* Catalogue::classOfTypeText(std::string_view typeText) const {
    return findIn(byTypeText, typeText);
}

const PluginClass* Catalogue::classOfTypeId(std::int64_t typeId) const {
    return findIn(byTypeId, typeId);
}

const Parameter* Catalogue::parameterNamed(const PluginClass& owner, std::string_view name) const {
    const auto first = parameters.begin() + static_cast<std::ptrdiff_t>(owner.firstParameter);
    const auto last = first + static_cast<std::ptrdiff_t>(owner.parameterCount);
    return findNamed(first, last, name);
}

const PluginClass* Catalogue::indexTypeText(const PluginClass& added) {
    const auto [entry, isNew] = byTypeText.emplace(added.typeText, &added);
    return isNew ? nullptr : entry->second;
}

const PluginClass* Catalogue::indexTypeId(const PluginClass& added) {
    const auto [entry, isNew] = byTypeId.emplace(added.typeId, &added);
    return isNew ? nullptr : entry->second;
}

}  // namespace metagen::replay

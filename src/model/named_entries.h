// An ordered map in one block of memory: entries with names, in ascending byte order of the names.
// Documents hold their members in that order already, so filling it sorts and searches nothing.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

#include "support/standard_errors.h"

namespace metagen {

/// The name is borrowed from the document that the entry was read from.
template <typename Entry>
struct Named {
    std::string_view name;
    Entry entry;
};

/// In ascending byte order of the names, each name once. Who fills it sees to both.
template <typename Entry>
using NamedEntries = std::vector<Named<Entry>>;

/// The entry of that name, or null.
template <typename Entry>
const Entry* find(const NamedEntries<Entry>& entries, std::string_view name) {
    const auto found = std::ranges::lower_bound(entries, name, {}, &Named<Entry>::name);
    return found == entries.end() || found->name != name ? nullptr : &found->entry;
}

/// The entry of that name. Throws std::out_of_range "invalid map<K, T> key" when there is none.
template <typename Entry>
const Entry& at(const NamedEntries<Entry>& entries, std::string_view name) {
    const Entry* entry = find(entries, name);
    if (entry == nullptr) throwInvalidMapKey();
    return *entry;
}

}  // namespace metagen

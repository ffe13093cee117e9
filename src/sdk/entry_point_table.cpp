#include "sdk/entry_point_table.h"

namespace metagen {

namespace {

template <typename Slot>
bool fillSlot(Slot& slot, const EntryPointResolver& resolve, const char* name) {
    slot = reinterpret_cast<Slot>(resolve(name));
    return slot != nullptr;
}

}  // namespace

const char* fillEntryPoints(EntryPointTable& table, const EntryPointResolver& resolve) {
#define METAGEN_FILL_SLOT(result, name, parameters) \
    if (!fillSlot(table.name, resolve, #name)) return #name;
    QYRA_SDK_ENTRY_POINTS(METAGEN_FILL_SLOT)
#undef METAGEN_FILL_SLOT
    return nullptr;
}

EntryPointTable& entryPoints() {
    static EntryPointTable table;
    return table;
}

}  // namespace metagen

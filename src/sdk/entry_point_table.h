// The addresses of the SDK's entry points, resolved at run time.
#pragma once

#include <functional>

#include "sdk/qyra_sdk.h"

namespace metagen {

/// One slot for each entry point, named like it; null until resolved.
struct EntryPointTable {
#define METAGEN_ENTRY_POINT_SLOT(result, name, parameters) result(*name) parameters = nullptr;
    QYRA_SDK_ENTRY_POINTS(METAGEN_ENTRY_POINT_SLOT)
#undef METAGEN_ENTRY_POINT_SLOT
};

/// An entry point whose type the resolver need not know.
using AnyEntryPoint = void (*)();

/// Gives the address for a name, or null when the library has none.
using EntryPointResolver = std::function<AnyEntryPoint(const char* name)>;

/// Resolves the slots in the order of the list and stops at the first name that is missing.
/// Returns that name, or null when the table is full; slots filled before stay filled.
const char* fillEntryPoints(EntryPointTable& table, const EntryPointResolver& resolve);

/// The table of this process, filled by SdkSession. Empty before.
EntryPointTable& entryPoints();

}  // namespace metagen

// Bringing the SDK up: loading its library, and resolving its entry points.
#include <benchmark/benchmark.h>

#include "sdk/entry_point_table.h"
#include "sdk/library_loader.h"

namespace metagen {

namespace {

/// The library that QYRA_SDK names; null, and the benchmark is over, when it names none.
LibraryHandle loadOrSkip(benchmark::State& state) {
    LibraryHandle library = loadFromEnvironment("QYRA_SDK", true);
    if (library == nullptr) state.SkipWithError("QYRA_SDK names no SDK");
    return library;
}

void entryPoint() {}

/// The list alone, with a resolver that knows every name at once.
void fillTable(benchmark::State& state) {
    EntryPointTable table;
    while (state.KeepRunning())
        benchmark::DoNotOptimize(fillEntryPoints(table, [](const char*) { return &entryPoint; }));
}
BENCHMARK(fillTable);

/// With the system's look-up.
void resolveInLibrary(benchmark::State& state) {
    LibraryHandle library = loadOrSkip(state);
    if (library == nullptr) return;
    EntryPointTable table;
    const auto resolve = [library](const char* name) { return findEntryPoint(library, name); };
    while (state.KeepRunning()) benchmark::DoNotOptimize(fillEntryPoints(table, resolve));
    unloadLibrary(library);
}
BENCHMARK(resolveInLibrary);

void loadLibrary(benchmark::State& state) {
    while (state.KeepRunning()) {
        LibraryHandle library = loadOrSkip(state);
        if (library == nullptr) return;
        unloadLibrary(library);
    }
}
BENCHMARK(loadLibrary);

}  // namespace

}  // namespace metagen

// The JSON module against the library that it stands on, on a base document of 60 classes.
#include <benchmark/benchmark.h>

#include <string>

#include <picojson.h>

#include "benchmarks/documents/base_writer.h"
#include "json/document.h"

namespace metagen {

namespace {

const std::string& document() {
    static const std::string text = invented::baseDocument(invented::InventedSdk({0.1, 1}));
    return text;
}

void countBytes(benchmark::State& state) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(document().size()));
}

void parseWithLibrary(benchmark::State& state) {
    const char* begin = document().data();
    const char* end = begin + document().size();
    while (state.KeepRunning()) {
        picojson::value value;
        std::string error;
        picojson::parse(value, begin, end, &error);
        benchmark::DoNotOptimize(value);
    }
    countBytes(state);
}
BENCHMARK(parseWithLibrary);

void parse(benchmark::State& state) {
    while (state.KeepRunning()) {
        const json::Document parsed(document());
        benchmark::DoNotOptimize(parsed.root());
    }
    countBytes(state);
}
BENCHMARK(parse);

void writeCompactText(benchmark::State& state) {
    const json::Document parsed(document());
    while (state.KeepRunning()) benchmark::DoNotOptimize(json::compactText(parsed.root()));
    countBytes(state);
}
BENCHMARK(writeCompactText);

}  // namespace

}  // namespace metagen

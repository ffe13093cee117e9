// The JSON module against the library that it stands on, on a base document of 60 classes.
#include <benchmark/benchmark.h>

#include <optional>
#include <string>

#include "benchmarks/documents/base_writer.h"
#include "support/json.h"

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
        json::Value value;
        std::string error;
        picojson::parse(value, begin, end, &error);
        benchmark::DoNotOptimize(value);
    }
    countBytes(state);
}
BENCHMARK(parseWithLibrary);

void parse(benchmark::State& state) {
    while (state.KeepRunning()) benchmark::DoNotOptimize(json::parse(document()));
    countBytes(state);
}
BENCHMARK(parse);

void writeCompactText(benchmark::State& state) {
    const std::optional<json::Value> value = json::parse(document());
    while (state.KeepRunning()) benchmark::DoNotOptimize(json::compactText(*value));
    countBytes(state);
}
BENCHMARK(writeCompactText);

}  // namespace

}  // namespace metagen

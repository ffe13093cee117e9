// The index of value arrays: the values of one parameter meet those of all parameters before it.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "benchmarks/invented_sdk/dice.h"
#include "genm/value_arrays.h"

namespace metagen {

namespace {

/// Colours, about half of which are one of a few usual ones.
std::vector<std::vector<float>> colors(std::size_t count) {
    invented::Dice dice = {count};
    std::vector<std::vector<float>> found;
    for (std::size_t number = 0; number < count; ++number) {
        const auto shade = static_cast<float>(dice.below(dice.inThousand(500) ? 4 : 1'000'000));
        found.push_back({shade, shade / 2, 1});
    }
    return found;
}

void internArrays(benchmark::State& state) {
    const std::vector<std::vector<float>> values = colors(static_cast<std::size_t>(state.range(0)));
    while (state.KeepRunning()) {
        ValueArrayGroup group(array_prefix::color);
        for (const std::vector<float>& each : values) benchmark::DoNotOptimize(group.intern(each));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(internArrays)->RangeMultiplier(10)->Range(100, 100'000);

void writeArrays(benchmark::State& state) {
    ValueArrayGroup group(array_prefix::color);
    for (const std::vector<float>& each : colors(static_cast<std::size_t>(state.range(0))))
        group.intern(each);
    while (state.KeepRunning()) {
        std::string out;
        group.appendDefinitions(out);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(writeArrays)->Arg(1000)->Arg(10'000);

}  // namespace

}  // namespace metagen

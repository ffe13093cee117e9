// What every document and every table is put together from: keys in order, escapes, literals.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>
#include <vector>

#include "benchmarks/invented_sdk/names.h"
#include "metadata/key_order.h"
#include "support/escaped_text.h"
#include "support/number_text.h"

namespace metagen {

namespace {

std::vector<std::string> keys(std::size_t count) {
    std::vector<std::string> names;
    for (std::size_t number = 0; number < count; ++number) {
        const std::size_t scattered = number * 2657 % invented::parameterNameCount();
        names.push_back(invented::makeParameterName(scattered));
    }
    return names;
}

void compareKeys(benchmark::State& state) {
    const std::string left = "diffuse_roughness_limit";
    const std::string right = "diffuse_roughness_maximum";
    while (state.KeepRunning()) benchmark::DoNotOptimize(CombinedKeyLess{}(left, right));
}
BENCHMARK(compareKeys);

void sortKeys(benchmark::State& state) {
    const std::vector<std::string> names = keys(static_cast<std::size_t>(state.range(0)));
    while (state.KeepRunning()) {
        std::vector<std::string_view> order(names.begin(), names.end());
        std::ranges::sort(order, CombinedKeyLess{});
        benchmark::DoNotOptimize(order.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(sortKeys)->Arg(25)->Arg(600)->Arg(6000);

void escape(benchmark::State& state, const std::string& text) {
    std::string out;
    while (state.KeepRunning()) {
        out.clear();
        appendEscaped(out, text);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK_CAPTURE(escape, one, std::string("1"));
BENCHMARK_CAPTURE(escape, plain, std::string("Transform(Matrix(Vector(1, 0, 0), Vector(0, 1, 0))"));
BENCHMARK_CAPTURE(escape, path, std::string("C:\\projects\\scene\\cache\\\"frame\"\t0001.vdb"));

void writeFloatLiteral(benchmark::State& state, float number) {
    std::string out;
    while (state.KeepRunning()) {
        out.clear();
        appendFloatLiteral(out, number);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK_CAPTURE(writeFloatLiteral, one, 1.0F);
BENCHMARK_CAPTURE(writeFloatLiteral, fraction, 0.785398F);
BENCHMARK_CAPTURE(writeFloatLiteral, small, 1e-07F);

}  // namespace

}  // namespace metagen

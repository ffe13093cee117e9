// Default texts: written from values, and read back into numbers.
#include <benchmark/benchmark.h>

#include "metadata/default_value_parser.h"
#include "metadata/default_value_text.h"
#include "sdk/parameter_type.h"
#include "support/standard_errors.h"

namespace metagen {

namespace {

TaggedValue transformValue() {
    return {type_code::transform, Components{1, 0, 0, 0, 1, 0, 0, 0, 1, 12.5F, 0.1F, -3.75F}};
}

TaggedValue floatListValue() {
    return {qyra_kind::floatList, std::vector<float>{0, 0.5F, 380, 550.5F, 1e-07F}};
}

TaggedValue genericListValue() {
    const TaggedValue color = {type_code::color, Components{1, 0.5F, 0.25F}};
    return {qyra_kind::genericList, std::vector<TaggedValue>(3, color)};
}

void writeText(benchmark::State& state, const TaggedValue& value) {
    while (state.KeepRunning()) benchmark::DoNotOptimize(defaultValueText(value));
}

BENCHMARK_CAPTURE(writeText, integer, TaggedValue{type_code::integer, 59303});
BENCHMARK_CAPTURE(writeText, single, TaggedValue{type_code::floatNumber, 0.785398F});
BENCHMARK_CAPTURE(writeText, color, TaggedValue{type_code::color, Components{1, 0.96F, 0.9F}});
BENCHMARK_CAPTURE(writeText, transform, transformValue());
BENCHMARK_CAPTURE(writeText, text, TaggedValue{type_code::string, std::string("textures/oak.exr")});
BENCHMARK_CAPTURE(writeText, floatList, floatListValue());
BENCHMARK_CAPTURE(writeText, genericList, genericListValue());

void readFloat(benchmark::State& state) {
    const std::string text = "0.785398";
    while (state.KeepRunning()) benchmark::DoNotOptimize(parseFloat(text));
}
BENCHMARK(readFloat);

void readInteger(benchmark::State& state) {
    const std::string text = "59303";
    while (state.KeepRunning()) benchmark::DoNotOptimize(parseInteger(text));
}
BENCHMARK(readInteger);

void readColor(benchmark::State& state) {
    Vector3 color = {};
    while (state.KeepRunning())
        benchmark::DoNotOptimize(parseVector3("Color(1, 0.96, 0.9)", color));
}
BENCHMARK(readColor);

void readTransform(benchmark::State& state) {
    const std::string text = defaultValueText(transformValue());
    Transform transform = {};
    while (state.KeepRunning()) benchmark::DoNotOptimize(parseTransform(text, transform));
}
BENCHMARK(readTransform);

void readFloatList(benchmark::State& state) {
    while (state.KeepRunning()) {
        std::vector<float> floats;
        parseFloatList("FloatList(0, 0.5, 380, 550.5, 1e-07)", floats);
        benchmark::DoNotOptimize(floats.data());
    }
}
BENCHMARK(readFloatList);

void readColorList(benchmark::State& state) {
    while (state.KeepRunning()) {
        std::vector<Vector3> colors;
        parseVector3List("ColorList(Color(1, 1, 1), Color(0.5, 0.5, 0.5), Color(0, 0, 0))", colors);
        benchmark::DoNotOptimize(colors.data());
    }
}
BENCHMARK(readColorList);

}  // namespace

}  // namespace metagen

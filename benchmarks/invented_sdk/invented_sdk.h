// An SDK that doesn't exist: as many plugin classes and parameters as a benchmark needs, each
// computed from its number when it is asked for. The documents of the benchmarks tell of it, and
// the computed library answers for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "benchmarks/invented_sdk/invented_parameter.h"
#include "benchmarks/invented_sdk/names.h"

namespace metagen::invented {

/// How large and which: scale 1 has 600 classes with 15,000 parameters.
struct Extent {
    double scale = 1;
    std::uint64_t seed = 1;
};

class InventedSdk {
public:
    explicit InventedSdk(Extent extent);

    std::size_t classCount() const { return classes; }
    const Category& category(std::size_t classNumber) const;
    std::string className(std::size_t classNumber) const;

    /// Parameters are numbered throughout; those of one class follow each other.
    std::size_t parameterCount() const { return firstParameter(classes); }
    std::size_t firstParameter(std::size_t classNumber) const;
    std::size_t classOfParameter(std::size_t parameter) const;

    std::string parameterName(std::size_t parameter) const;
    InventedParameter parameter(std::size_t parameter) const;

    /// Dice for something else about this class or parameter; every purpose has its own.
    Dice dice(std::uint64_t purpose, std::size_t number) const;

private:
    std::size_t classes;
    std::uint64_t seed;
};

}  // namespace metagen::invented

// An SDK that doesn't exist: as many plugin classes and parameters as a benchmark needs, each
// computed from its number when it is asked for. The computed library answers for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "benchmarks/invented_sdk/invented_parameter.h"
#include "benchmarks/invented_sdk/names.h"

namespace metagen::invented {

/// How large and which: scale 1 has 600 classes with 15,000 parameters. In revision 2, which is the
/// same SDK some time later, three of a hundred parameters have another default or type, are gone,
/// or have another one beside them, and a few classes have another name.
struct Extent {
    double scale = 1;
    std::uint64_t seed = 1;
    int revision = 1;
};

/// A parameter as a class lists it. Its number is the parameter's own, or, for what revision 2 made
/// of it, that behind all parameters.
struct ListedParameter {
    std::string name;
    std::size_t number;
};

class InventedSdk {
public:
    explicit InventedSdk(Extent extent);

    std::size_t classCount() const { return classes; }
    const Category& category(std::size_t classNumber) const;
    std::string className(std::size_t classNumber) const;

    /// Parameters are numbered throughout, first as in revision 1, those of one class behind each
    /// other, then again as revision 2 has them.
    std::size_t parameterCount() const { return 2 * firstParameter(classes); }
    std::vector<ListedParameter> parametersOf(std::size_t classNumber) const;
    InventedParameter parameter(std::size_t parameter) const;

private:
    std::size_t firstParameter(std::size_t classNumber) const;
    std::size_t classOfParameter(std::size_t parameter) const;
    std::string parameterName(std::size_t parameter) const;
    void listRevised(std::size_t parameter, Dice revised,
                     std::vector<ListedParameter>& listed) const;
    Dice dice(std::uint64_t purpose, std::size_t number) const;

    std::size_t classes;
    std::uint64_t seed;
    int revision;
};

}  // namespace metagen::invented

#include "benchmarks/invented_sdk/invented_sdk.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace metagen::invented {

namespace {

constexpr double classesAtScaleOne = 600;

/// Sizes of classes repeat after twelve; the first parameter of each of the twelve, and the sum.
constexpr std::array<std::size_t, 13> firstOfTwelve = {0,   18,  21,  53,  61,  129, 134,
                                                       156, 196, 207, 259, 273, 300};

enum Purpose : std::uint64_t {
    ofClassName = 1,
    ofCategory,
    ofParameterName,
    ofParameter,
    ofRevision,
    ofRevisedParameter,
    ofRevisedName
};

/// Without a common factor with the number of names, so that a class meets no name twice.
constexpr std::size_t nameStride = 2657;

}  // namespace

InventedSdk::InventedSdk(Extent extent)
    : classes(static_cast<std::size_t>(std::lround(classesAtScaleOne * extent.scale))),
      seed(extent.seed),
      revision(extent.revision) {}

const Category& InventedSdk::category(std::size_t classNumber) const {
    return pickCategory(dice(ofCategory, classNumber));
}

std::string InventedSdk::className(std::size_t classNumber) const {
    const bool isRenamed = revision > 1 && dice(ofRevisedName, classNumber).inThousand(4);
    return (isRenamed ? "New" : "") +
           makeClassName(category(classNumber), dice(ofClassName, classNumber), classNumber);
}

std::size_t InventedSdk::firstParameter(std::size_t classNumber) const {
    return classNumber / 12 * firstOfTwelve.back() + firstOfTwelve[classNumber % 12];
}

std::size_t InventedSdk::classOfParameter(std::size_t parameter) const {
    const auto* next = std::ranges::upper_bound(firstOfTwelve, parameter % firstOfTwelve.back());
    const auto inTwelve = static_cast<std::size_t>(next - firstOfTwelve.begin()) - 1;
    return parameter / firstOfTwelve.back() * 12 + inTwelve;
}

std::string InventedSdk::parameterName(std::size_t parameter) const {
    const std::size_t owner = classOfParameter(parameter);
    const std::size_t offset = dice(ofParameterName, owner).below(parameterNameCount());
    const std::size_t position = parameter - firstParameter(owner);
    return makeParameterName((offset + position * nameStride) % parameterNameCount());
}

std::vector<ListedParameter> InventedSdk::parametersOf(std::size_t classNumber) const {
    std::vector<ListedParameter> listed;
    const std::size_t end = firstParameter(classNumber + 1);
    for (std::size_t number = firstParameter(classNumber); number < end; ++number) {
        Dice revised = dice(ofRevision, number);
        if (revision > 1 && revised.inThousand(30)) {
            listRevised(number, revised, listed);
        } else {
            listed.push_back({parameterName(number), number});
        }
    }
    return listed;
}

void InventedSdk::listRevised(std::size_t parameter, Dice revised,
                              std::vector<ListedParameter>& listed) const {
    const std::size_t later = firstParameter(classes) + parameter;
    const std::string name = parameterName(parameter);
    switch (revised.below(4)) {
        case 0: break;
        case 1:
            listed.push_back({name, parameter});
            listed.push_back({name + "_legacy", later});
            break;
        default: listed.push_back({name, later}); break;
    }
}

InventedParameter InventedSdk::parameter(std::size_t parameter) const {
    const std::size_t count = firstParameter(classes);
    return inventParameter(parameter < count ? dice(ofParameter, parameter)
                                             : dice(ofRevisedParameter, parameter - count));
}

Dice InventedSdk::dice(std::uint64_t purpose, std::size_t number) const {
    return {seed, purpose, number};
}

}  // namespace metagen::invented

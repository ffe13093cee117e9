#include "comparison.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "description.h"

namespace example {

namespace {

/// Collects what differs, by the names of what it is part of.
class Comparison {
public:
    void require(bool same, const std::string& path, const std::string& compiled,
                 const std::string& loaded) {
        if (same) return;
        lines.push_back(path + " is " + compiled + " in the source, " + loaded + " in the table");
    }

    /// Calls compare with the name and both entries wherever both sides have one.
    template <typename Entry, typename Compare>
    void compareEntries(const std::string& path, const std::map<std::string, Entry>& compiled,
                        const std::map<std::string, Entry>& loaded, const Compare& compare) {
        for (const auto& [name, entry] : compiled) {
            const auto other = loaded.find(name);
            if (other == loaded.end()) {
                lines.push_back(path + name + " is only in the source");
            } else {
                compare(path + name, entry, other->second);
            }
        }
        for (const auto& [name, entry] : loaded) {
            if (compiled.count(name) == 0) lines.push_back(path + name + " is only in the table");
        }
    }

    std::vector<std::string> lines;
};

/// The source has six significant digits.
bool sameNumber(float compiled, float loaded) {
    return compiled == loaded || describe(compiled) == describe(loaded);
}

/// In the source the elements of integer arrays have gone through floats.
bool sameNumber(std::int32_t compiled, std::int32_t loaded) {
    return static_cast<float>(compiled) == static_cast<float>(loaded);
}

template <typename Number>
bool sameNumbers(const std::vector<Number>& compiled, const std::vector<Number>& loaded) {
    return std::equal(compiled.begin(), compiled.end(), loaded.begin(), loaded.end(),
                      [](Number left, Number right) { return sameNumber(left, right); });
}

/// The table has the whole part where 32 bits hold it, the source six digits.
bool sameVersion(double compiled, double loaded) {
    const double lowest = std::numeric_limits<std::int32_t>::min();
    const bool isHeld = std::trunc(compiled) >= lowest && std::trunc(compiled) < -lowest;
    return (isHeld ? std::trunc(compiled) : lowest) == loaded ||
           describe(static_cast<float>(compiled)) == describe(static_cast<float>(loaded));
}

/// What the source has for a default that could not be read.
bool isUnreadable(const std::string& compiled, const DefaultValue& loaded) {
    const auto* array = std::get_if<NumberArray<float>>(&loaded);
    return compiled.empty() && array != nullptr && array->numbers.empty() &&
           (array->descriptor & qymat::SQDT_SINGLE) != 0;
}

/// Whether a default of the table is the same as one of the source, by the kind of the latter.
struct SameDefault {
    const DefaultValue& loaded;

    bool operator()(std::int32_t compiled) const {
        const auto* number = std::get_if<std::int32_t>(&loaded);
        return number != nullptr && *number == compiled;
    }
    bool operator()(float compiled) const {
        const auto* number = std::get_if<float>(&loaded);
        return number != nullptr && sameNumber(compiled, *number);
    }
    bool operator()(const std::string& compiled) const {
        const auto* text = std::get_if<std::string>(&loaded);
        if (text == nullptr) return isUnreadable(compiled, loaded);
        return compiled == *text;
    }
    bool operator()(const TypeOnly& compiled) const {
        const auto* type = std::get_if<TypeOnly>(&loaded);
        return type != nullptr && type->descriptor == compiled.descriptor;
    }
    template <typename Number>
    bool operator()(const NumberArray<Number>& compiled) const {
        const auto* array = std::get_if<NumberArray<Number>>(&loaded);
        return array != nullptr && array->descriptor == compiled.descriptor &&
               sameNumbers(compiled.numbers, array->numbers);
    }
};

/// The table has the literal of an empty text where the document has no category.
std::string categoryOf(const PluginMeta& loaded) {
    return loaded.category == "\"\"" ? "" : loaded.category;
}

void compareParameter(Comparison& out, const std::string& path, const Parameter& compiled,
                      const Parameter& loaded) {
    out.require(compiled.type == loaded.type, path + ": type", compiled.type, loaded.type);
    out.require(compiled.flags == loaded.flags, path + ": flags", std::to_string(compiled.flags),
                std::to_string(loaded.flags));
    out.require(std::visit(SameDefault{loaded.defaultValue}, compiled.defaultValue),
                path + ": default", describe(compiled.defaultValue), describe(loaded.defaultValue));
}

void comparePlugin(Comparison& out, const std::string& path, const PluginMeta& compiled,
                   const PluginMeta& loaded) {
    out.require(compiled.category == categoryOf(loaded), path + ": category", compiled.category,
                categoryOf(loaded));
    out.compareEntries(path + ".", compiled.parameters, loaded.parameters,
                       [&](const auto& name, const auto& left, const auto& right) {
                           compareParameter(out, name, left, right);
                       });
}

void compareFileParams(Comparison& out, const std::string& path, const FileParams& compiled,
                       const FileParams& loaded) {
    out.compareEntries(path, compiled, loaded,
                       [&](const auto& plugin, const auto& left, const auto& right) {
                           out.require(left == right, plugin, describe(left), describe(right));
                       });
}

/// The description has the parameter and six digits of the value.
bool sameCondition(const Scaling::Condition& compiled, const Scaling::Condition& loaded) {
    return compiled.operation == loaded.operation &&
           compiled.value.index() == loaded.value.index() && describe(compiled) == describe(loaded);
}

void compareScaling(Comparison& out, const std::string& path, const Scaling& compiled,
                    const Scaling& loaded) {
    const bool same = compiled.unit == loaded.unit && compiled.power == loaded.power &&
                      compiled.inverse == loaded.inverse &&
                      std::equal(compiled.conditions.begin(), compiled.conditions.end(),
                                 loaded.conditions.begin(), loaded.conditions.end(), sameCondition);
    out.require(same, path + ": scaling", describe(compiled), describe(loaded));
}

}  // namespace

std::vector<std::string> differences(const HandlerMeta& compiled, const HandlerMeta& loaded) {
    Comparison out;
    out.require(sameVersion(compiled.version, loaded.version), "handlers: version",
                std::to_string(compiled.version), std::to_string(loaded.version));
    const auto compareHandler = [&](const auto& path, const Handler& left, const Handler& right) {
        out.require(left.type == right.type && sameNumbers(left.value, right.value), path,
                    describe(left), describe(right));
    };
    out.compareEntries("handlers: ", compiled.plugins, loaded.plugins,
                       [&](const auto& path, const auto& left, const auto& right) {
                           out.compareEntries(path + ".", left.handlers, right.handlers,
                                              compareHandler);
                       });
    return out.lines;
}

std::vector<std::string> differences(const Meta& compiled, const Meta& loaded) {
    Comparison out;
    out.require(sameVersion(compiled.version, loaded.version), "meta: version",
                std::to_string(compiled.version), std::to_string(loaded.version));
    out.compareEntries("", compiled.plugins, loaded.plugins,
                       [&](const auto& path, const auto& left, const auto& right) {
                           comparePlugin(out, path, left, right);
                       });
    compareFileParams(out, "files: ", compiled.fileParams, loaded.fileParams);
    compareFileParams(out, "input files: ", compiled.inputFileParams, loaded.inputFileParams);
    out.compareEntries("scaling: ", compiled.scalingParams, loaded.scalingParams,
                       [&](const auto& path, const auto& left, const auto& right) {
                           out.compareEntries(
                               path + ".", left, right,
                               [&](const auto& name, const auto& one, const auto& other) {
                                   compareScaling(out, name, one, other);
                               });
                       });
    return out.lines;
}

}  // namespace example

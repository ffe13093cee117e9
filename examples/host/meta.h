// The host's parameter metadata: types, default values, file parameters and scaling. The generated
// meta.inl builds a Meta, in these words.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace host {

/// The parts of a type descriptor: how an element is represented, of how many numbers it is made,
/// and whether there is one or a list of them. A descriptor is one of each, or-ed together.
namespace qymat {
inline constexpr std::uint32_t RDT_FLOAT = 1;
inline constexpr std::uint32_t RDT_INT = 2;
inline constexpr std::uint32_t RDT_STRING = 4;
inline constexpr std::uint32_t STDT_SINGLE = 8;
inline constexpr std::uint32_t STDT_ARRAY_3 = 16;
inline constexpr std::uint32_t STDT_ARRAY_4 = 32;
inline constexpr std::uint32_t STDT_ARRAY_9 = 64;
inline constexpr std::uint32_t STDT_ARRAY_12 = 128;
inline constexpr std::uint32_t SQDT_SINGLE = 256;
inline constexpr std::uint32_t SQDT_LIST = 512;
}  // namespace qymat

/// A default of which only the type is known.
struct TypeOnly {
    std::uint32_t descriptor;
};

/// The numbers of all elements, one after the other.
template <typename Number>
struct NumberArray {
    std::uint32_t descriptor;
    std::vector<Number> numbers;
};

/// In the order of the kinds in the binary table.
using DefaultValue = std::variant<std::int32_t, float, std::string, TypeOnly,
                                  NumberArray<std::int32_t>, NumberArray<float>>;

struct Parameter {
    std::string type;
    std::uint32_t flags;  ///< 1: user data, 2: names a file, 4: names an input file
    DefaultValue defaultValue;
};

/// One plugin class. `add` has an overload for every form in which meta.inl gives a default. The
/// number before a descriptor, always 1, is how many values of that type the parameter has.
class PluginMeta {
public:
    PluginMeta& add(const std::string& name, const char* type, std::uint32_t flags, int value) {
        return add(name, {type, flags, std::int32_t{value}});
    }
    PluginMeta& add(const std::string& name, const char* type, std::uint32_t flags, float value) {
        return add(name, {type, flags, value});
    }
    PluginMeta& add(const std::string& name, const char* type, std::uint32_t flags,
                    const char* text) {
        return add(name, {type, flags, std::string(text)});
    }
    PluginMeta& add(const std::string& name, const char* type, std::uint32_t flags, int /*count*/,
                    std::uint32_t descriptor) {
        return add(name, {type, flags, TypeOnly{descriptor}});
    }
    template <typename Number, std::size_t size>
    PluginMeta& add(const std::string& name, const char* type, std::uint32_t flags, int /*count*/,
                    std::uint32_t descriptor, const Number (&numbers)[size]) {
        return add(name, {type, flags, NumberArray<Number>{descriptor, {numbers, numbers + size}}});
    }
    /// An array without elements, as metagen_generate_tables puts it.
    template <typename Number>
    PluginMeta& add(const std::string& name, const char* type, std::uint32_t flags, int /*count*/,
                    std::uint32_t descriptor, const std::array<Number, 0>& /*numbers*/) {
        return add(name, {type, flags, NumberArray<Number>{descriptor, {}}});
    }
    PluginMeta& add(const std::string& name, Parameter parameter) {
        parameters.insert_or_assign(name, std::move(parameter));
        return *this;
    }

    std::string category;
    std::map<std::string, Parameter> parameters;
};

/// How a parameter follows the scene's units, and under which conditions.
struct Scaling {
    enum class UnitType : std::int32_t { Scene = 1 };
    enum class Operation : std::int32_t { Equals = 1 };

    /// The named parameter has the value; a document may leave the value out.
    struct Condition {
        std::string parameter;
        Operation operation = Operation::Equals;
        std::variant<std::monostate, std::int32_t, float> value = {};
    };

    UnitType unit = UnitType::Scene;
    std::int32_t power = 1;
    bool inverse = false;
    std::vector<Condition> conditions = {};
};

/// Parameter names by plugin name.
using FileParams = std::map<std::string, std::vector<std::string>>;

class Meta {
public:
    explicit Meta(double documentVersion) : version(documentVersion) {}

    PluginMeta& add(const std::string& plugin, const char* category) {
        PluginMeta& entry = plugins[plugin];
        entry.category = category;
        return entry;
    }

    double version;
    std::map<std::string, PluginMeta> plugins;
    FileParams fileParams;
    FileParams inputFileParams;
    std::map<std::string, std::map<std::string, Scaling>> scalingParams;  ///< by plugin, parameter
};

}  // namespace host

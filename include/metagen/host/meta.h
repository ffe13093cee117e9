// Parameter metadata: types, default values, file parameters and scaling. The generated meta.inl is
// the body of a function that returns a Meta.
#pragma once

#include <array>
#include <climits>  // INT_MIN, which meta.inl names
#include <cstddef>
#include <cstdint>
#include <limits>  // infinities and NaNs, which meta.inl names
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace metagen::host {

/// The parts of a type descriptor: how an element is represented, of how many numbers it is made,
/// and whether there is one or a list of them. A descriptor is one of each, or-ed together.
// NOLINTBEGIN(readability-identifier-naming): the generated source has these names.
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
// NOLINTEND(readability-identifier-naming)

/// Flags of a parameter.
inline constexpr std::uint32_t fromUserData = 1;
inline constexpr std::uint32_t namesFile = 2;
inline constexpr std::uint32_t namesInputFile = 4;

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
    std::uint32_t flags = 0;
    DefaultValue defaultValue = {};
};

/// One plugin class. `add` has an overload for every form in which meta.inl gives a default. The
/// number before a descriptor, always 1, is how many values of that type the parameter has.
class PluginMeta {
public:
    PluginMeta& add(std::string_view name, std::string_view type, std::uint32_t flags, int value) {
        return add(name, {std::string(type), flags, std::int32_t{value}});
    }
    PluginMeta& add(std::string_view name, std::string_view type, std::uint32_t flags,
                    float value) {
        return add(name, {std::string(type), flags, value});
    }
    /// A text may hold a NUL, which ends a literal only where it is taken as a pointer.
    template <std::size_t size>
    PluginMeta& add(std::string_view name, std::string_view type, std::uint32_t flags,
                    const char (&text)[size]) {
        return add(name, {std::string(type), flags, std::string(text, size - 1)});
    }
    PluginMeta& add(std::string_view name, std::string_view type, std::uint32_t flags,
                    int /*count*/, std::uint32_t descriptor) {
        return add(name, {std::string(type), flags, TypeOnly{descriptor}});
    }
    template <typename Number, std::size_t size>
    PluginMeta& add(std::string_view name, std::string_view type, std::uint32_t flags,
                    int /*count*/, std::uint32_t descriptor, const Number (&numbers)[size]) {
        return add(name, {std::string(type), flags,
                          NumberArray<Number>{descriptor, {numbers, numbers + size}}});
    }
    /// An array without elements, as metagen_generate_tables completes it.
    template <typename Number>
    PluginMeta& add(std::string_view name, std::string_view type, std::uint32_t flags,
                    int /*count*/, std::uint32_t descriptor,
                    const std::array<Number, 0>& /*none*/) {
        return add(name, {std::string(type), flags, NumberArray<Number>{descriptor, {}}});
    }
    PluginMeta& add(std::string_view name, Parameter parameter) {
        parameters.insert_or_assign(std::string(name), std::move(parameter));
        return *this;
    }

    std::string category;
    std::map<std::string, Parameter> parameters;
};

/// How a parameter follows the scene's units, and under which conditions.
struct Scaling {
    enum class UnitType : std::int32_t { Scene = 1 };
    enum class Operation : std::int32_t { Equals = 1 };

    /// The named parameter of the same plugin has the value; a document may leave the value out.
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

    PluginMeta& add(std::string_view plugin, std::string_view category) {
        PluginMeta& entry = plugins[std::string(plugin)];
        entry.category = category;
        return entry;
    }

    double version;
    std::map<std::string, PluginMeta> plugins;
    FileParams fileParams;
    FileParams inputFileParams;
    std::map<std::string, std::map<std::string, Scaling>> scalingParams;  ///< by plugin, parameter
};

}  // namespace metagen::host

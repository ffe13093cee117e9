// The tables as the binary files hold them: loadHandlers reads handlers.bin, loadMeta reads
// meta.bin.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "metagen/host/handlers.h"
#include "metagen/host/meta.h"
#include "metagen/host/table_reader.h"

namespace metagen::host {

namespace detail {

// The smallest records: texts are empty, what may repeat is missing.
constexpr std::size_t numberSize = 4;
constexpr std::size_t smallestName = 4;
constexpr std::size_t smallestGroup = 8;       // name, count
constexpr std::size_t smallestHandler = 12;    // name, type, count
constexpr std::size_t smallestPlugin = 12;     // name, category, count
constexpr std::size_t smallestParameter = 20;  // name, type, flags, kind, value
constexpr std::size_t smallestScaling = 17;    // name, unit, power, flag, count
constexpr std::size_t smallestCondition = 16;  // name, operation, type, value

// A condition's value has the descriptor of a single float or integer before it.
constexpr std::uint32_t singleFloat = qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_SINGLE;
constexpr std::uint32_t singleInteger = qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_SINGLE;

/// Reads a count, and as many entries by their names. Names ascend, so that none comes twice.
template <typename Entry>
std::map<std::string, Entry> readEntries(TableReader& in, std::size_t smallestSize,
                                         Entry (*readEntry)(TableReader& in)) {
    std::map<std::string, Entry> entries;
    for (std::uint32_t left = in.readCount(smallestSize); left > 0; --left) {
        std::string name = in.readText();
        in.require(entries.empty() || entries.rbegin()->first < name, "has its names out of order");
        entries.emplace_hint(entries.end(), std::move(name), readEntry(in));
    }
    return entries;
}

inline Handler readHandler(TableReader& in) {
    const auto type = static_cast<HandlerTypes>(in.read<std::uint32_t>());
    const bool isColor = type == HandlerTypes::Color;
    const bool isNumber = isColor || type == HandlerTypes::Float;
    in.require(isNumber || type == HandlerTypes::Duplicate, "names an unknown handler");
    const std::uint32_t count = in.readCount(numberSize);
    in.require(count == 0 || (count == 1 && isNumber) || (count == 3 && isColor),
               "has another count of numbers than its handler");
    return {type, in.readNumbers<float>(count)};
}

inline PluginHandlers readPluginHandlers(TableReader& in) {
    PluginHandlers plugin;
    plugin.handlers = readEntries(in, smallestHandler, readHandler);
    return plugin;
}

/// Of how many numbers an element of the type is made, of the descriptors that occur; 0 for others.
constexpr std::uint32_t elementSize(std::uint32_t descriptor) {
    switch (descriptor) {
        case 521:
        case 522:
        case 524: return 1;
        case 273:
        case 529: return 3;
        case 289:
        case 545: return 4;
        case 321:
        case 577: return 9;
        case 385:
        case 641: return 12;
        default: return 0;
    }
}

/// A descriptor that has the bit.
inline std::uint32_t readDescriptor(TableReader& in, std::uint32_t bit) {
    const auto descriptor = in.read<std::uint32_t>();
    in.require(elementSize(descriptor) != 0 && (descriptor & bit) != 0,
               "has an unknown descriptor");
    return descriptor;
}

template <typename Number>
NumberArray<Number> readArray(TableReader& in, std::uint32_t representation) {
    const std::uint32_t descriptor = readDescriptor(in, representation);
    const std::uint32_t count = in.readCount(numberSize);
    const std::uint32_t size = elementSize(descriptor);
    const bool isList = (descriptor & qymat::SQDT_LIST) != 0;
    in.require(isList ? count % size == 0 : count == 0 || count == size,
               "has another count of numbers than its descriptor");
    return {descriptor, in.readNumbers<Number>(count)};
}

inline DefaultValue readDefault(TableReader& in) {
    const auto kind = in.read<std::uint32_t>();
    in.require(kind < std::variant_size_v<DefaultValue>, "has an unknown kind of default");
    switch (kind) {
        case 0: return in.read<std::int32_t>();
        case 1: return in.read<float>();
        case 2: return in.readText();
        case 3: return TypeOnly{readDescriptor(in, qymat::SQDT_LIST)};
        case 4: return readArray<std::int32_t>(in, qymat::RDT_INT);
        default: return readArray<float>(in, qymat::RDT_FLOAT);
    }
}

inline Parameter readParameter(TableReader& in) {
    Parameter parameter;
    parameter.type = in.readText();
    parameter.flags = in.read<std::uint32_t>();
    in.require(parameter.flags <= (fromUserData | namesFile | namesInputFile),
               "has an unknown flag");
    parameter.defaultValue = readDefault(in);
    return parameter;
}

inline PluginMeta readPlugin(TableReader& in) {
    PluginMeta plugin;
    plugin.category = in.readText();
    plugin.parameters = readEntries(in, smallestParameter, readParameter);
    return plugin;
}

inline std::vector<std::string> readNames(TableReader& in) {
    std::vector<std::string> names(in.readCount(smallestName));
    for (std::string& name : names) name = in.readText();
    return names;
}

/// A condition that the document gives no number has a type and no value: what comes next is taken
/// for it, and the table is refused there or a few values further on.
inline Scaling::Condition readCondition(TableReader& in) {
    Scaling::Condition condition;
    condition.parameter = in.readText();
    condition.operation = static_cast<Scaling::Operation>(in.read<std::int32_t>());
    in.require(condition.operation == Scaling::Operation::Equals, "has an unknown operation");
    const auto type = in.read<std::uint32_t>();
    in.require(type == singleFloat || type == singleInteger,
               "has an unknown type of condition value");
    if (type == singleFloat) {
        condition.value = in.read<float>();
    } else {
        condition.value = in.read<std::int32_t>();
    }
    return condition;
}

inline Scaling readScaling(TableReader& in) {
    Scaling scaling;
    scaling.unit = static_cast<Scaling::UnitType>(in.read<std::int32_t>());
    in.require(scaling.unit == Scaling::UnitType::Scene, "has an unknown unit");
    scaling.power = in.read<std::int32_t>();
    const std::uint8_t inverse = in.readByte();
    in.require(inverse <= 1, "has an unknown inverse flag");
    scaling.inverse = inverse == 1;
    scaling.conditions.resize(in.readCount(smallestCondition));
    for (Scaling::Condition& condition : scaling.conditions) condition = readCondition(in);
    return scaling;
}

inline std::map<std::string, Scaling> readPluginScaling(TableReader& in) {
    return readEntries(in, smallestScaling, readScaling);
}

}  // namespace detail

/// Reads the bytes of handlers.bin. Throws BadTable when they are no such table.
inline HandlerMeta loadHandlers(std::string_view bytes) {
    TableReader in(bytes);
    in.expectTag("HDLR");
    HandlerMeta meta(in.read<std::int32_t>());
    meta.plugins = detail::readEntries(in, detail::smallestGroup, detail::readPluginHandlers);
    in.expectEnd();
    return meta;
}

/// Reads the bytes of meta.bin. Throws BadTable when they are no such table.
inline Meta loadMeta(std::string_view bytes) {
    TableReader in(bytes);
    in.expectTag("META");
    Meta meta(in.read<std::int32_t>());
    meta.plugins = detail::readEntries(in, detail::smallestPlugin, detail::readPlugin);
    meta.fileParams = detail::readEntries(in, detail::smallestGroup, detail::readNames);
    meta.inputFileParams = detail::readEntries(in, detail::smallestGroup, detail::readNames);
    meta.scalingParams = detail::readEntries(in, detail::smallestGroup, detail::readPluginScaling);
    in.expectEnd();
    return meta;
}

/// The bytes of a file. Throws std::runtime_error when it can't be opened.
inline std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("can't be opened");
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace metagen::host

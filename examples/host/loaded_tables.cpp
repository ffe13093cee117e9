#include "loaded_tables.h"

#include "table_reader.h"

namespace host {

namespace {

// The smallest records: texts are empty, what may repeat is missing.
constexpr std::size_t smallestPlugin = 8;      // name, count
constexpr std::size_t smallestHandler = 12;    // name, type, count
constexpr std::size_t smallestParameter = 20;  // name, type, flags, kind, value
constexpr std::size_t smallestName = 4;
constexpr std::size_t smallestScaling = 17;    // name, unit, power, flag, count
constexpr std::size_t smallestCondition = 16;  // name, operation, type, value
constexpr std::size_t numberSize = 4;

// A condition's value has the descriptor of a single float or integer before it.
constexpr std::uint32_t singleFloat = qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_SINGLE;
constexpr std::uint32_t singleInteger = qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_SINGLE;

Handler readHandler(TableReader& in) {
    const auto type = static_cast<HandlerTypes>(in.readU32());
    if (type != HandlerTypes::Float && type != HandlerTypes::Color &&
        type != HandlerTypes::Duplicate) {
        in.fail("names an unknown handler");
    }
    std::vector<float> value(in.readCount(numberSize));
    for (float& number : value) number = in.readF32();
    return {type, std::move(value)};
}

NumberArray<std::int32_t> readIntegers(TableReader& in) {
    NumberArray<std::int32_t> array = {in.readU32(), {}};
    array.numbers.resize(in.readCount(numberSize));
    for (std::int32_t& number : array.numbers) number = in.readI32();
    return array;
}

NumberArray<float> readFloats(TableReader& in) {
    NumberArray<float> array = {in.readU32(), {}};
    array.numbers.resize(in.readCount(numberSize));
    for (float& number : array.numbers) number = in.readF32();
    return array;
}

DefaultValue readDefault(TableReader& in) {
    switch (in.readU32()) {
        case 0: return in.readI32();
        case 1: return in.readF32();
        case 2: return in.readText();
        case 3: return TypeOnly{in.readU32()};
        case 4: return readIntegers(in);
        case 5: return readFloats(in);
        default: in.fail("has an unknown kind of default");
    }
}

Parameter readParameter(TableReader& in) {
    std::string type = in.readText();
    const std::uint32_t flags = in.readU32();
    return {std::move(type), flags, readDefault(in)};
}

void readPlugin(TableReader& in, Meta& meta) {
    PluginMeta& plugin = meta.plugins[in.readText()];
    plugin.category = in.readText();
    for (std::uint32_t left = in.readCount(smallestParameter); left > 0; --left) {
        const std::string name = in.readText();
        plugin.add(name, readParameter(in));
    }
}

FileParams readFileParams(TableReader& in) {
    FileParams table;
    for (std::uint32_t left = in.readCount(smallestPlugin); left > 0; --left) {
        std::vector<std::string>& parameters = table[in.readText()];
        parameters.resize(in.readCount(smallestName));
        for (std::string& parameter : parameters) parameter = in.readText();
    }
    return table;
}

Scaling::Condition readCondition(TableReader& in) {
    Scaling::Condition condition;
    condition.parameter = in.readText();
    condition.operation = static_cast<Scaling::Operation>(in.readI32());
    switch (in.readU32()) {
        case singleFloat: condition.value = in.readF32(); break;
        case singleInteger: condition.value = in.readI32(); break;
        default: in.fail("has an unknown type of condition value");
    }
    return condition;
}

Scaling readScaling(TableReader& in) {
    Scaling scaling;
    scaling.unit = static_cast<Scaling::UnitType>(in.readI32());
    scaling.power = in.readI32();
    scaling.inverse = in.readByte() != 0;
    scaling.conditions.resize(in.readCount(smallestCondition));
    for (Scaling::Condition& condition : scaling.conditions) condition = readCondition(in);
    return scaling;
}

void readScalingParams(TableReader& in, Meta& meta) {
    for (std::uint32_t plugins = in.readCount(smallestPlugin); plugins > 0; --plugins) {
        std::map<std::string, Scaling>& parameters = meta.scalingParams[in.readText()];
        for (std::uint32_t left = in.readCount(smallestScaling); left > 0; --left) {
            const std::string name = in.readText();
            parameters[name] = readScaling(in);
        }
    }
}

}  // namespace

HandlerMeta loadHandlers(std::string_view bytes) {
    TableReader in(bytes);
    in.expectTag("HDLR");
    HandlerMeta meta(in.readI32());
    for (std::uint32_t plugins = in.readCount(smallestPlugin); plugins > 0; --plugins) {
        PluginHandlers& plugin = meta.add(in.readText());
        for (std::uint32_t left = in.readCount(smallestHandler); left > 0; --left) {
            const std::string parameter = in.readText();
            plugin.add(parameter, readHandler(in));
        }
    }
    in.expectEnd();
    return meta;
}

Meta loadMeta(std::string_view bytes) {
    TableReader in(bytes);
    in.expectTag("META");
    Meta meta(in.readI32());
    for (std::uint32_t left = in.readCount(smallestPlugin); left > 0; --left) readPlugin(in, meta);
    meta.fileParams = readFileParams(in);
    meta.inputFileParams = readFileParams(in);
    readScalingParams(in, meta);
    in.expectEnd();
    return meta;
}

}  // namespace host

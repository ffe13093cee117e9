#include "model/meta_model.h"

#include <string>
#include <utility>

#include "model/handlers.h"
#include "sdk/parameter_type.h"
#include "support/end_run.h"
#include "support/numbers.h"

namespace metagen {

namespace {

/// The member truncated toward zero when it is a number, otherwise the fallback.
std::int32_t readNumber(json::Object object, std::string_view key, std::int32_t fallback) {
    const json::Value* member = json::find(object, key);
    const auto number = member == nullptr ? std::nullopt : member->number();
    return number ? toInt32(*number) : fallback;
}

ScaleCondition readCondition(json::Object object) {
    ScaleCondition condition;
    condition.op = readNumber(object, "op", condition.op);
    if (const json::Value* ref = json::find(object, "ref")) {
        condition.ref = ref->text().value_or(condition.ref);
    }
    if (const json::Value* value = json::find(object, "value")) condition.value = value->number();
    return condition;
}

Scaling readScaling(json::Object object, Arena& arena) {
    Scaling scaling;
    scaling.unit = readNumber(object, "unit", scaling.unit);
    scaling.power = readNumber(object, "power", scaling.power);
    if (const json::Value* inverse = json::find(object, "inverse")) {
        scaling.inverse = inverse->boolean().value_or(scaling.inverse);
    }
    const json::Value* conditions = json::find(object, "conditions");
    if (conditions == nullptr) return scaling;
    std::vector<ScaleCondition> read;
    for (const json::Value& condition : conditions->array().value_or(json::Array())) {
        if (const auto members = condition.object()) read.push_back(readCondition(*members));
    }
    scaling.conditions = arena.keep(std::span<const ScaleCondition>(read));
    return scaling;
}

std::uint32_t readFileFlags(json::Object object) {
    const json::Value* handler = json::find(object, "handler");
    const json::Value* info = json::find(object, "handlerinfo");
    if (handler == nullptr || info == nullptr) return 0;
    if (json::asText(*handler) != handler_kind::fileBrowserWord) return 0;
    const json::Value* loadMode = json::find(json::asObject(*info), "loadMode");
    const bool isOne = loadMode != nullptr && json::asText(*loadMode) == "1";
    return param_flag::fileBrowser | (isOne ? param_flag::loadModeOne : 0);
}

std::string_view readTypeName(json::Object object, std::string_view type) {
    const json::Value* listType = type == "list" ? json::find(object, "listType") : nullptr;
    return listType == nullptr ? type : json::asText(*listType);
}

MetaParameter readKnownParameter(std::string_view name, json::Object object,
                                 std::uint32_t originFlag, Arena& arena) {
    const MetaParameter parameter = readMetaParameter(name, object, originFlag, arena);
    if (parameter.code != type_code::unknown) return parameter;
    const std::string type(json::asText(json::at(object, "type")));
    endRun(failureStatus, "Type: " + type + " converts to an error\n");
}

/// Adds the entries of a member of the plugin, which it may lack.
void readParameters(json::Object plugin, std::string_view key, std::uint32_t originFlag,
                    std::vector<MetaParameter>& parameters, Arena& arena) {
    const json::Value* member = json::find(plugin, key);
    if (member == nullptr) return;
    const json::Object entries = json::asObject(*member);
    for (const auto& [name, value] : entries) {
        parameters.push_back(readKnownParameter(name, json::asObject(value), originFlag, arena));
    }
}

/// Puts user data, which follow the parameters, in order among them.
void mergeUserData(std::vector<MetaParameter>& parameters, std::size_t paramCount) {
    if (parameters.size() == paramCount) return;
    const auto userData = parameters.begin() + static_cast<std::ptrdiff_t>(paramCount);
    const auto less = [](const MetaParameter& left, const MetaParameter& right) {
        return left.name < right.name;
    };
    const auto equal = [](const MetaParameter& left, const MetaParameter& right) {
        return left.name == right.name;
    };
    std::inplace_merge(parameters.begin(), userData, parameters.end(), less);
    parameters.erase(std::unique(parameters.begin(), parameters.end(), equal), parameters.end());
}

/// The parameters are in a buffer that serves one plugin after the other.
MetaPlugin readPlugin(std::string_view name, json::Object object,
                      std::vector<MetaParameter>& parameters, Arena& arena) {
    MetaPlugin plugin;
    plugin.name = name;
    parameters.clear();
    readParameters(object, "params", 0, parameters, arena);
    const std::size_t paramCount = parameters.size();
    readParameters(object, "userData", param_flag::fromUserData, parameters, arena);
    mergeUserData(parameters, paramCount);
    plugin.parameters = arena.keep(std::span<const MetaParameter>(parameters));
    if (const json::Value* type = json::find(object, "type")) plugin.category = type->text();
    return plugin;
}

}  // namespace

// In the order in which what is wrong with a parameter shows.
MetaParameter readMetaParameter(std::string_view name, json::Object object,
                                std::uint32_t originFlag, Arena& arena) {
    MetaParameter parameter;
    parameter.name = name;
    const std::string_view type = json::asText(json::at(object, "type"));
    parameter.typeName = readTypeName(object, type);
    parameter.flags = originFlag | readFileFlags(object);
    if (const json::Value* scaling = json::find(object, "scaling")) {
        const Scaling read = readScaling(json::asObject(*scaling), arena);
        if (read.unit != 0) parameter.scaling = arena.keep(std::span(&read, 1)).data();
    }
    parameter.code = typeCode(type, parameter.typeName);
    if (parameter.code == type_code::unknown) return parameter;
    if (const json::Value* text = json::find(object, "defaultValue")) {
        parameter.defaultText = json::asText(*text);
    }
    return parameter;
}

MetaModel readMeta(json::Object plugins, Arena& arena) {
    MetaModel model;
    model.reserve(plugins.size());
    std::vector<MetaParameter> parameters;
    for (const auto& [name, plugin] : plugins) {
        model.push_back(readPlugin(name, json::asObject(plugin), parameters, arena));
    }
    return model;
}

}  // namespace metagen

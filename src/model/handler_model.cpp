#include "model/handlers.h"

#include <algorithm>
#include <string>
#include <utility>

#include "metadata/default_value_parser.h"
#include "support/numbers.h"

namespace metagen {

namespace {

void tellGrey(HandlerParameter& parameter, float value) {
    parameter.components = {value};
    parameter.componentCount = value == 1.0F ? 0 : 1;
}

/// A colour of three or four fields, or a single number for all three. Hosts have no use for the
/// alpha.
void tellColor(HandlerParameter& parameter, std::string_view text) {
    std::array<float, 3>& color = parameter.components;
    if (!parseVector3(text, color)) color.fill(parseFloat(text));
    const bool grey = color[0] == color[1] && color[0] == color[2];  // NaNs are none
    if (grey) return tellGrey(parameter, color[0]);
    parameter.componentCount = color.size();
}

/// Fills in the default of the parameter's kind.
void readDefault(HandlerParameter& parameter, json::Object userData) {
    if (parameter.kind->value.empty()) return;
    const std::string name = std::string(parameter.name).append(parameter.kind->value);
    const json::Object entry = json::asObject(json::at(userData, name));
    const std::string_view text = json::asText(json::at(entry, "defaultValue"));
    if (parameter.kind == &handler_kind::color) {
        tellColor(parameter, text);
    } else {
        tellGrey(parameter, parseFloat(text));
    }
}

bool hasUserData(const HandlerParameter& parameter, json::Object userData) {
    const auto stands = [&](std::string_view suffix) {
        return json::find(userData, std::string(parameter.name).append(suffix)) != nullptr;
    };
    return std::ranges::all_of(parameter.kind->needed, stands) &&
           (parameter.kind->value.empty() || stands(parameter.kind->value));
}

std::vector<HandlerParameter> readParameters(json::Object params, json::Object userData) {
    std::vector<HandlerParameter> parameters;
    for (const auto& [name, value] : params) {
        const auto parameter = readHandlerParameter(name, value, userData);
        if (parameter) parameters.push_back(*parameter);
    }
    return parameters;
}

}  // namespace

std::optional<HandlerParameter> readHandlerParameter(std::string_view name,
                                                     const json::Value& value,
                                                     json::Object userData) {
    const auto members = value.object();
    const json::Value* handler = members ? json::find(*members, "handler") : nullptr;
    if (handler == nullptr) return std::nullopt;
    HandlerParameter parameter = {.name = name, .kind = findHandlerKind(json::asText(*handler))};
    if (parameter.kind == nullptr || !hasUserData(parameter, userData)) return std::nullopt;
    readDefault(parameter, userData);
    return parameter;
}

std::vector<HandlerPlugin> readHandlers(json::Object plugins) {
    std::vector<HandlerPlugin> read;
    for (const auto& [name, plugin] : plugins) {
        const json::Object members = json::asObject(plugin);
        const json::Value* params = json::find(members, "params");
        const json::Value* userData = json::find(members, "userData");
        if (params == nullptr || userData == nullptr) continue;
        const json::Object userDataMembers = json::asObject(*userData);
        auto parameters = readParameters(json::asObject(*params), userDataMembers);
        if (!parameters.empty()) read.push_back({name, std::move(parameters)});
    }
    return read;
}

}  // namespace metagen

#include "benchmarks/documents/stripped_plugin.h"

#include <algorithm>
#include <array>
#include <utility>

#include "benchmarks/documents/document_text.h"

namespace metagen::invented {

namespace {

using picojson::object;
using picojson::value;

constexpr std::uint64_t ofStrippedPlugin = 200;
constexpr std::uint64_t ofStrippedParameter = 201;

constexpr std::array<std::string_view, 8> groups = {
    "Basic", "Reflection", "Refraction", "Options", "Output", "Advanced", "Sampling", "Texture"};

value textValue(std::string_view text) { return value(std::string(text)); }

value numberValue(std::size_t number) { return value(static_cast<double>(number)); }

bool isOneOf(std::int32_t code, std::initializer_list<std::int32_t> codes) {
    return std::ranges::find(codes, code) != codes.end();
}

std::string labelOf(std::string name) {
    for (char& character : name)
        if (character == '_') character = ' ';
    return name;
}

}  // namespace

StrippedPlugin::StrippedPlugin(const InventedSdk& described, std::size_t number)
    : sdk(described), plugin(number), dice(described.dice(ofStrippedPlugin, number)) {}

value StrippedPlugin::build() {
    if (dice.inThousand(8)) return {};
    findConditionTarget();
    const std::size_t end = sdk.firstParameter(plugin + 1);
    for (std::size_t number = sdk.firstParameter(plugin); number < end; ++number)
        addParameter(number);
    addUserData("host_version", "integer", std::to_string(dice.below(5)));
    addUserData("host_category", "string", std::string(dice.oneOf(groups)));

    object built;
    const std::string_view category = sdk.category(plugin).name;
    if (dice.inThousand(100) && !category.empty()) built["type"] = textValue(category);
    if (dice.inThousand(20)) built["type"] = textValue("node");
    built["params"] = value(std::move(parameters));
    built["userData"] = value(std::move(userData));
    built["label"] = textValue(sdk.className(plugin));
    return value(std::move(built));
}

void StrippedPlugin::findConditionTarget() {
    const std::size_t end = sdk.firstParameter(plugin + 1);
    for (std::size_t number = sdk.firstParameter(plugin); number < end; ++number) {
        const InventedParameter parameter = sdk.parameter(number);
        if (isOneOf(parameter.typeCode, {0, 3})) conditionTarget = sdk.parameterName(number);
    }
}

void StrippedPlugin::addParameter(std::size_t number) {
    dice = sdk.dice(ofStrippedParameter, number);
    if (!dice.inThousand(600)) return;
    const InventedParameter parameter = sdk.parameter(number);
    const std::string name = sdk.parameterName(number);
    const bool mayGo = parameter.isList || parameter.typeCode == 9;
    if (mayGo && dice.inThousand(60)) {
        parameters[name] = value();
        return;
    }
    object entry;
    if (!parameter.isList) addHandler(name, parameter, entry);
    if (isOneOf(parameter.typeCode, {1, 2}) && dice.inThousand(150)) addScaling(entry);
    addOverride(parameter, entry);
    addHostKeys(name, entry);
    parameters[name] = value(std::move(entry));
}

void StrippedPlugin::addHandler(const std::string& name, const InventedParameter& parameter,
                                object& entry) {
    const std::int32_t code = parameter.typeCode;
    if (isOneOf(code, {5, 6, 11}) && dice.inThousand(400)) addTextureHandler(name, true, entry);
    if (isOneOf(code, {1, 13}) && dice.inThousand(150)) addTextureHandler(name, false, entry);
    if (code == 0 && dice.inThousand(30)) addDuplicateHandler(name, entry);
    if (code == 9 && dice.inThousand(350)) addFileBrowser(entry);
}

void StrippedPlugin::addTextureHandler(const std::string& name, bool isColor, object& entry) {
    entry["handler"] = textValue(isColor ? "ColorTexFrameHandler" : "FloatTexFrameHandler");
    if (isColor) {
        addUserData(name + "_color", "acolor", textOf(inventValue(replay::kind::acolor, 0, dice)));
    } else {
        addUserData(name + "_float", "float", textOf(inventValue(replay::kind::single, 0, dice)));
    }
    addUserData(name + "_tex", "texture", "");
    addUserData(name + "_tex_on", "bool", "1");
    addUserData(name + "_tex_mult", "float", "1");
    // Forgotten here and there, so that the checks have something to say.
    if (!dice.inThousand(20)) addUserData(name + "_res_mult", "float", "1");
    addUserData("texture_multiplier_mode", "integer", "0");
}

void StrippedPlugin::addDuplicateHandler(const std::string& name, object& entry) {
    entry["handler"] = textValue("DuplicateHandler");
    addUserData(name + "_duplicate", "integer", "0");
    addUserData(name + "_duplicate_output", "integer", "1");
}

void StrippedPlugin::addFileBrowser(object& entry) {
    entry["handler"] = textValue("FileBrowserHandler");
    object information;
    information["loadMode"] = textValue(dice.inThousand(600) ? "1" : "0");
    information["filter"] = textValue("Images (*.exr *.png)|*.exr;*.png");
    entry["handlerinfo"] = value(std::move(information));
}

void StrippedPlugin::addScaling(object& entry) {
    object scaling;
    scaling["unit"] = numberValue(1);
    if (dice.inThousand(500)) scaling["power"] = numberValue(1 + dice.below(3));
    if (dice.inThousand(300)) scaling["inverse"] = value(dice.inThousand(500));
    if (conditionTarget && dice.inThousand(300)) {
        object condition;
        condition["op"] = numberValue(1);
        condition["ref"] = textValue(*conditionTarget);
        condition["value"] = numberValue(dice.below(2));
        scaling["conditions"] = value(picojson::array{value(std::move(condition))});
    }
    entry["scaling"] = value(std::move(scaling));
}

void StrippedPlugin::addOverride(const InventedParameter& parameter, object& entry) {
    if (parameter.isList || parameter.guide) return;
    if (parameter.typeCode == 1 && dice.inThousand(15)) entry["type"] = textValue("float texture");
    if (dice.inThousand(80))
        entry["defaultValue"] =
            textValue(textOf(inventValue(parameter.defaultValue.kind, 0, dice)));
    if (!dice.inThousand(50)) return;
    entry["type"] = textValue(typeNameOf(parameter.typeCode));
    if (const auto text = defaultTextOf(parameter)) entry["defaultValue"] = textValue(*text);
}

void StrippedPlugin::addHostKeys(const std::string& name, object& entry) {
    if (dice.inThousand(500)) entry["label"] = textValue(labelOf(name));
    if (dice.inThousand(200)) entry["hidden"] = value(true);
    if (dice.inThousand(200)) {
        object place;
        place["group"] = textValue(dice.oneOf(groups));
        place["order"] = numberValue(dice.below(40));
        entry["ui"] = value(std::move(place));
    }
    if (dice.inThousand(100)) entry["range"] = value(picojson::array{value(0.0), value(0.75)});
}

void StrippedPlugin::addUserData(const std::string& name, const char* type,
                                 const std::string& defaultText) {
    object entry;
    entry["type"] = textValue(type);
    if (!defaultText.empty()) entry["defaultValue"] = textValue(defaultText);
    userData[name] = value(std::move(entry));
}

}  // namespace metagen::invented

#include "genm/scaling_table.h"

#include "genm/scaling_condition.h"
#include "genm/stop.h"
#include "support/number_text.h"

namespace metagen {

namespace {

constexpr std::int32_t noUnit = 0;
constexpr std::int32_t sceneUnit = 1;
constexpr std::int32_t defaultPower = 1;

/// The flag stands before conditions even when it is false.
bool hasInverseFlag(const ParamEntry& parameter) {
    return parameter.scaleInverse || !parameter.conditions.empty();
}

bool hasPower(const ParamEntry& parameter) {
    return hasInverseFlag(parameter) || parameter.scalePower != defaultPower;
}

/// Appends what differs from the defaults: unit, power and flag.
void appendUnit(std::string& out, const ParamEntry& parameter) {
    if (parameter.scaleUnit != sceneUnit) stop("Error: Unsupported scaling condition unit type\n");
    out += ", { Scaling::UnitType::Scene";
    if (hasPower(parameter)) {
        out += ", ";
        appendInteger(out, parameter.scalePower);
    }
    if (hasInverseFlag(parameter)) out += parameter.scaleInverse ? ", true" : ", false";
}

void appendConditions(std::string& out, const ParamEntry& parameter, const CombinedModel& model,
                      std::string_view plugin) {
    const char* separator = "\n\t\t\t";
    for (const ScaleCondition& condition : parameter.conditions) {
        out += separator;
        appendCondition(out, condition, model, plugin);
        separator = ",\n\t\t\t";
    }
    // The blank after "}" stands only without conditions: deliberate.
    out += parameter.conditions.empty() ? "} " : "\n\t\t}";
}

void appendParameter(std::string& out, std::string_view name, const ParamEntry& parameter,
                     const CombinedModel& model, std::string_view plugin) {
    const bool hasUnit = parameter.scaleUnit != sceneUnit || hasPower(parameter);
    out += "\n\t\t{ \"";
    out += name;
    out += '"';
    if (hasUnit) appendUnit(out, parameter);
    out += ", {";
    appendConditions(out, parameter, model, plugin);
    out += hasUnit ? "}}" : "}";
}

void writeParameter(BinaryFile& file, const ParamEntry& parameter, const CombinedModel& model,
                    std::string_view plugin) {
    file.writeI32(parameter.scaleUnit);
    file.writeI32(parameter.scalePower);
    file.writeByte(parameter.scaleInverse ? 1 : 0);
    file.writeCount(parameter.conditions.size());
    for (const ScaleCondition& condition : parameter.conditions) {
        writeCondition(file, condition, model, plugin);
    }
}

}  // namespace

ScalingTable collectScalingTable(const CombinedModel& model) {
    ScalingTable table;
    for (const auto& [plugin, entry] : model) {
        for (const auto& [name, parameter] : entry.params) {
            if (parameter.scaleUnit == noUnit) continue;
            table[plugin.substr(0, plugin.find('\0'))].emplace(name, &parameter);
        }
    }
    return table;
}

void writeScalingTable(BinaryFile& file, const ScalingTable& table, const CombinedModel& model) {
    file.writeCount(table.size());
    for (const auto& [plugin, parameters] : table) {
        file.writeText(plugin);
        file.writeCount(parameters.size());
        for (const auto& [name, parameter] : parameters) {
            file.writeText(name);
            writeParameter(file, *parameter, model, plugin);
        }
    }
}

void appendScalingTable(std::string& out, const ScalingTable& table, const CombinedModel& model) {
    if (table.empty()) return;
    out += "m.scalingParams = ";
    const char* pluginSeparator = "{";
    for (const auto& [plugin, parameters] : table) {
        out += pluginSeparator;
        out += "\n\t{ \"";
        out += plugin;
        out += "\", ";
        const char* separator = "{";
        for (const auto& [name, parameter] : parameters) {
            out += separator;
            appendParameter(out, name, *parameter, model, plugin);
            separator = ",";
        }
        out += "\n\t}}";
        pluginSeparator = ",";
    }
    out += "\n};\n";
}

}  // namespace metagen

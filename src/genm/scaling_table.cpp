#include "genm/tables.h"

#include "genm/default_record.h"
#include "model/binary_table.h"
#include "sdk/parameter_type.h"
#include "support/end_run.h"
#include "support/numbers.h"

namespace metagen {

namespace {

constexpr std::int32_t sceneUnit = 1;
constexpr std::int32_t defaultPower = 1;
constexpr std::int32_t equalsOperation = 1;

/// Where a condition stands.
struct Owner {
    const MetaModel& model;
    std::string_view plugin;
};

[[noreturn]] void stop(std::string_view message) { endRun(brokenMetadataStatus, message); }

/// The descriptor of the condition's value, checked whether or not the document gives one.
std::uint32_t valueDescriptor(const ScaleCondition& condition, const Owner& owner) {
    const MetaParameter& parameter = at(at(owner.model, owner.plugin).parameters, condition.ref);
    const std::optional<std::uint32_t> descriptor = conditionDescriptor(parameter);
    if (descriptor) return *descriptor;
    if (isListCode(parameter.code)) stop("Error: Scalling conditions do not support list types\n");
    stop("Error: Scalling conditions unsuported value type\n");
}

// A value that is no number leaves its place empty, in both tables: deliberate, although a reader
// of the binary one can't tell.

void appendConditionRecord(std::string& records, const ScaleCondition& condition,
                           const Owner& owner) {
    const std::uint32_t descriptor = valueDescriptor(condition, owner);
    appendText(records, condition.ref);
    appendI32(records, condition.op);
    appendU32(records, descriptor);
    if (!condition.value) return;
    if (descriptor == singleFloatDescriptor) {
        appendF32(records, toFloat(*condition.value));
    } else {
        appendI32(records, toInt32(*condition.value));
    }
}

void appendCondition(std::string& out, const ScaleCondition& condition, const Owner& owner) {
    if (!hasKnownOperation(condition)) {
        stop("Error: Unsupported scalling condiiton operation type\n");
    }
    const std::uint32_t descriptor = valueDescriptor(condition, owner);
    out.append("{ \"").append(condition.ref).append("\", Scaling::Operation::Equals, ");
    if (condition.value && descriptor == singleFloatDescriptor) {
        appendFloatLiteral(out, toFloat(*condition.value));
    } else if (condition.value) {
        appendIntegerLiteral(out, toInt32(*condition.value));
    }
    out += " }";
}

/// The flag stands before conditions even when it is false.
bool hasInverseFlag(const Scaling& scaling) {
    return scaling.inverse || !scaling.conditions.empty();
}

bool hasPower(const Scaling& scaling) {
    return hasInverseFlag(scaling) || scaling.power != defaultPower;
}

/// Appends what differs from the defaults: unit, power and flag.
void appendUnit(std::string& out, const Scaling& scaling) {
    if (!hasKnownUnit(scaling)) stop("Error: Unsupported scaling condition unit type\n");
    out += ", { Scaling::UnitType::Scene";
    if (hasPower(scaling)) {
        out += ", ";
        appendInteger(out, scaling.power);
    }
    if (hasInverseFlag(scaling)) out += scaling.inverse ? ", true" : ", false";
}

void appendConditions(std::string& out, const Scaling& scaling, const Owner& owner) {
    const char* separator = "\n\t\t\t";
    for (const ScaleCondition& condition : scaling.conditions) {
        out += separator;
        appendCondition(out, condition, owner);
        separator = ",\n\t\t\t";
    }
    // The blank after "}" stands only without conditions: deliberate.
    out += scaling.conditions.empty() ? "} " : "\n\t\t}";
}

void appendParameter(std::string& out, std::string_view name, const Scaling& scaling,
                     const Owner& owner) {
    const bool hasUnit = scaling.unit != sceneUnit || hasPower(scaling);
    out.append("\n\t\t{ \"").append(name).append("\"");
    if (hasUnit) appendUnit(out, scaling);
    out += ", {";
    appendConditions(out, scaling, owner);
    out += hasUnit ? "}}" : "}";
}

}  // namespace

bool hasKnownUnit(const Scaling& scaling) { return scaling.unit == sceneUnit; }

bool hasKnownOperation(const ScaleCondition& condition) { return condition.op == equalsOperation; }

std::optional<std::uint32_t> conditionDescriptor(const MetaParameter& parameter) {
    if (parameter.code == type_code::floatNumber) return singleFloatDescriptor;
    const bool isWhole =
        parameter.code == type_code::integer || parameter.code == type_code::boolean;
    return isWhole ? std::optional(singleIntegerDescriptor) : std::nullopt;
}

ScalingTable collectScalingTable(const MetaModel& model) {
    ScalingTable table;
    for (const MetaPlugin& plugin : model) {
        for (const MetaParameter& parameter : plugin.parameters) {
            if (parameter.scaling == nullptr) continue;
            const std::string_view name = plugin.name.substr(0, plugin.name.find('\0'));
            table[name].emplace(parameter.name, parameter.scaling);
        }
    }
    return table;
}

void appendScalingRecords(std::string& records, const ScalingTable& table, const MetaModel& model) {
    appendCount(records, table.size());
    for (const auto& [plugin, parameters] : table) {
        appendText(records, plugin);
        appendCount(records, parameters.size());
        for (const auto& [name, scaling] : parameters) {
            appendText(records, name);
            appendI32(records, scaling->unit);
            appendI32(records, scaling->power);
            records += scaling->inverse ? '\1' : '\0';
            appendCount(records, scaling->conditions.size());
            for (const ScaleCondition& condition : scaling->conditions) {
                appendConditionRecord(records, condition, {model, plugin});
            }
        }
    }
}

void appendScalingTable(std::string& out, const ScalingTable& table, const MetaModel& model) {
    if (table.empty()) return;
    out += "m.scalingParams = ";
    const char* pluginSeparator = "{";
    for (const auto& [plugin, parameters] : table) {
        out.append(pluginSeparator).append("\n\t{ \"").append(plugin).append("\", ");
        const char* separator = "{";
        for (const auto& [name, scaling] : parameters) {
            out += separator;
            appendParameter(out, name, *scaling, {model, plugin});
            separator = ",";
        }
        out += "\n\t}}";
        pluginSeparator = ",";
    }
    out += "\n};\n";
}

}  // namespace metagen

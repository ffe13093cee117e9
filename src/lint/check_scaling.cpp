#include <algorithm>
#include <stdexcept>
#include <string>

#include "genm/tables.h"
#include "lint/checks.h"
#include "lint/nearest_name.h"
#include "lint/wording.h"
#include "model/meta_model.h"
#include "support/numbers.h"

namespace metagen::lint {

namespace {

std::string decimal(std::int32_t number) {
    std::string text;
    appendInteger(text, number);
    return text;
}

/// The parameters and user data of a section that can be read.
void readEntries(json::Object entries, std::uint32_t flag, std::vector<MetaParameter>& parameters,
                 Arena& arena) {
    for (const auto& [name, entry] : entries) {
        try {
            parameters.push_back(readMetaParameter(name, json::asObject(entry), flag, arena));
        } catch (const std::exception&) {
            continue;  // a matter of checkEntries
        }
    }
}

bool hasScaling(const json::Member& plugin) {
    const auto isScaled = [](const json::Member& entry) {
        return json::find(membersOf(entry.value), "scaling") != nullptr;
    };
    return std::ranges::any_of(section(membersOf(plugin.value), params), isScaled) ||
           std::ranges::any_of(section(membersOf(plugin.value), userData), isScaled);
}

/// Of the plugins that have a scaling.
MetaModel readableModel(json::Object plugins, Arena& arena) {
    MetaModel model;
    std::vector<MetaParameter> parameters;
    for (const json::Member& member : plugins) {
        if (!hasScaling(member)) continue;
        const auto& [name, value] = member;
        parameters.clear();
        readEntries(section(membersOf(value), params), 0, parameters, arena);
        readEntries(section(membersOf(value), userData), param_flag::fromUserData, parameters,
                    arena);
        std::ranges::stable_sort(parameters, {}, &MetaParameter::name);
        model.push_back({name, {}, arena.keep(std::span<const MetaParameter>(parameters))});
    }
    return model;
}

class ScalingCheck {
public:
    ScalingCheck(const Subject& linted, Findings& collected)
        : subject(linted),
          plugins(section(linted.combined, "plugins")),
          model(readableModel(plugins, arena)),
          findings(collected) {}

    void run() {
        for (const auto& [plugin, parameters] : collectScalingTable(model)) {
            for (const auto& [name, scaling] : parameters) check(plugin, name, *scaling);
        }
    }

private:
    void check(std::string_view plugin, std::string_view name, const Scaling& scaling) {
        const std::string_view key =
            json::find(section(section(plugins, plugin), params), name) != nullptr ? params
                                                                                   : userData;
        if (!hasKnownUnit(scaling)) {
            findings.add(rule::scalingUnit,
                         subject.valuePlace({"plugins", plugin, key, name, "scaling", "unit"}),
                         "the unit " + decimal(scaling.unit) +
                             " is unknown; it is 1 where the scene's unit scales the parameter, "
                             "else 0: genm ends");
        }
        const std::vector<const json::Value*> values = conditionsOf(plugin, key, name);
        const std::uint32_t place =
            subject.valuePlace({"plugins", plugin, key, name, "scaling", "conditions"});
        for (std::size_t i = 0; i < scaling.conditions.size(); ++i) {
            const json::Value* value = i < values.size() ? values[i] : nullptr;
            Condition condition = {plugin, scaling.conditions[i], membersOf(value),
                                   value == nullptr ? place : value->offset()};
            checkOperation(condition);
            checkReference(condition);
            checkValue(condition);
        }
    }

    /// Of one parameter, where the stripped document has it.
    struct Condition {
        std::string_view plugin;
        const ScaleCondition& read;
        json::Object members;
        std::uint32_t place;

        /// Of a member's value, or of the condition that lacks it.
        [[nodiscard]] std::uint32_t placeOf(std::string_view key) const {
            const json::Value* value = json::find(members, key);
            return value == nullptr ? place : value->offset();
        }
    };

    /// Those that are read: objects.
    [[nodiscard]] std::vector<const json::Value*> conditionsOf(std::string_view plugin,
                                                               std::string_view key,
                                                               std::string_view name) const {
        const json::Object stripped = section(section(subject.stripped, "plugins"), plugin);
        const json::Object scaling = section(section(section(stripped, key), name), "scaling");
        const json::Value* conditions = json::find(scaling, "conditions");
        std::vector<const json::Value*> objects;
        if (conditions == nullptr) return objects;
        for (const json::Value& condition : conditions->array().value_or(json::Array())) {
            if (condition.isObject()) objects.push_back(&condition);
        }
        return objects;
    }

    void checkOperation(const Condition& condition) {
        if (hasKnownOperation(condition.read)) return;
        add(condition, "op", "the \"op\" of a condition must be 1, for equality, so genm ends");
    }

    void checkReference(const Condition& condition) try {
        const MetaParameter& parameter =
            at(at(model, condition.plugin).parameters, condition.read.ref);
        if (conditionDescriptor(parameter)) return;
        add(condition, "ref",
            "a condition can't be on " + inQuotes(parameter.name) +
                ", which is no integer, bool or float, so genm ends");
    } catch (const std::out_of_range&) {
        const json::Object plugin = section(plugins, condition.plugin);
        const json::Object parameters = section(plugin, params);
        // One that can't be read is told where it stands.
        if (json::find(parameters, condition.read.ref) != nullptr ||
            json::find(section(plugin, userData), condition.read.ref) != nullptr) {
            return;
        }
        add(condition, "ref",
            condition.read.ref.empty()
                ? "a condition needs a \"ref\": the name of a parameter of this plugin; genm ends"
                : printable(condition.plugin) + " has no parameter " +
                      inQuotes(condition.read.ref) +
                      didYouMean(finder.among(parameters, condition.read.ref)) +
                      ", on which this condition is, so genm ends");
    }

    void checkValue(const Condition& condition) {
        if (condition.read.value) return;
        add(condition, "value",
            "the \"value\" of a condition must be a number: without one, genm writes tables that "
            "no host can read");
    }

    void add(const Condition& condition, std::string_view key, std::string message) {
        findings.add(rule::scalingCondition, condition.placeOf(key), std::move(message));
    }

    const Subject& subject;
    json::Object plugins;
    Arena arena;
    MetaModel model;
    Findings& findings;
    NearestName finder;
};

}  // namespace

void checkScaling(const Subject& subject, Findings& findings) {
    ScalingCheck(subject, findings).run();
}

}  // namespace metagen::lint

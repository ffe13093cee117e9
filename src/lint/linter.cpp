#include "lint/linter.h"

#include <utility>

#include "lint/checks.h"
#include "lint/shape.h"
#include "lint/subject.h"
#include "lint/wording.h"

namespace metagen::lint {

namespace {

std::string faultyMember(std::string_view owner, std::string_view key, std::string_view kind) {
    std::string fault = printable(owner.substr(0, 80));
    if (!owner.empty()) fault += ": ";
    return fault += inQuotes(key) + " is not " + std::string(kind);
}

/// The SDK's parameters have texts only, of which the type is always there.
std::string parameterFault(std::string_view owner, const json::Member& parameter) {
    const auto members = parameter.value.object();
    if (!members) return faultyMember(owner, parameter.key, "an object");
    const auto fault = [&](std::string_view key, std::string_view kind) {
        return faultyMember(ownerName(owner, parameter.key), key, kind);
    };
    if (json::find(*members, "type") == nullptr) return fault("type", "there");
    for (const auto& [key, value] : *members) {
        const KnownKey* known = findKey(level::entry, key);
        if (known != nullptr && !known->fits(value)) return fault(key, known->kinds);
    }
    return "";
}

std::string pluginFault(const json::Member& plugin) {
    const auto members = plugin.value.object();
    if (!members) return faultyMember("", plugin.key, "an object");
    for (const auto& [key, value] : *members) {
        const KnownKey* known = findKey(level::plugin, key);
        if (known == nullptr) continue;
        if (!known->fits(value)) return faultyMember(plugin.key, key, known->kinds);
        if (key == "type") continue;
        for (const json::Member& parameter : membersOf(value)) {
            if (std::string fault = parameterFault(plugin.key, parameter); !fault.empty()) {
                return fault;
            }
        }
    }
    return "";
}

}  // namespace

std::string baseDocumentFault(const json::Document& base) {
    if (!base.isValid()) return "it is not JSON, line " + std::to_string(base.errorLine());
    const auto members = base.root().object();
    if (!members) return "it is not an object";
    const json::Value* plugins = json::find(*members, "plugins");
    if (plugins == nullptr || !plugins->isObject()) return "it has no object \"plugins\"";
    for (const json::Member& plugin : membersOf(plugins)) {
        if (std::string fault = pluginFault(plugin); !fault.empty()) return fault;
    }
    return "";
}

std::vector<Finding> lint(const json::Document& stripped, const json::Document& base,
                          const json::Document* previous) {
    Findings findings;
    if (!stripped.isValid()) {
        checkSyntax(stripped, findings);
        return findings.take();
    }
    checkRepeatedKeys(stripped, findings);
    if (!stripped.root().isObject()) {
        findings.add(rule::wrongKind, stripped.root().offset(),
                     std::string("the document is ").append(kindInWords(stripped.root())) +
                         "; it must be an object, so the commands end there");
        return findings.take();
    }
    checkTrailingText(stripped, findings);
    const Subject subject(stripped, base);
    const json::Object before =
        previous == nullptr ? json::Object() : json::asObject(previous->root());
    checkNames(subject, findings);
    checkShape(subject, findings);
    checkAgainstSdk(subject, before, findings);
    checkEntries(subject, before, findings);
    checkHandlers(subject, findings);
    checkScaling(subject, findings);
    if (previous != nullptr) checkUpgrade(subject, before, findings);
    return findings.take();
}

}  // namespace metagen::lint

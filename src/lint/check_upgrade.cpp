#include <string>

#include "lint/checks.h"
#include "lint/nearest_name.h"
#include "lint/wording.h"

namespace metagen::lint {

namespace {

/// A value as messages show it; of one that isn't there "none".
std::string shown(const json::Value* value) {
    return value == nullptr ? "none" : described(*value);
}

bool isSame(const json::Value* left, const json::Value* right) {
    if (left == nullptr || right == nullptr) return left == right;
    return *left == *right;
}

class UpgradeCheck {
public:
    UpgradeCheck(const Subject& linted, json::Object previousBase, Findings& collected)
        : subject(linted),
          live(section(linted.base, "plugins")),
          previous(section(previousBase, "plugins")),
          findings(collected) {}

    void run() {
        for (const json::Member& plugin : section(subject.stripped, "plugins")) {
            const json::Value* before = json::find(previous, plugin.key);
            if (before == nullptr || plugin.value.isNull()) continue;
            if (const json::Value* now = json::find(live, plugin.key)) {
                checkPlugin(plugin, membersOf(before), membersOf(now));
            } else {
                findings.add(rule::removedPlugin, subject.document.offsetOf(plugin.key),
                             "the new SDK no longer has the plugin " + inQuotes(plugin.key) +
                                 didYouMean(finder.among(live, plugin.key)));
            }
        }
    }

private:
    void checkPlugin(const json::Member& plugin, json::Object before, json::Object now) {
        const json::Object stripped = membersOf(plugin.value);
        const json::Member* category = findMember(stripped, "type");
        const json::Value* was = json::find(before, "type");
        const json::Value* is = json::find(now, "type");
        if (category != nullptr && !isSame(was, is)) {
            findings.add(rule::categoryChanged, category->value.offset(),
                         "the SDK's category of " + printable(plugin.key) + " changed from " +
                             shown(was) + " to " + shown(is) + " below this one");
        }
        const json::Object paramsBefore = section(before, "params");
        const json::Object paramsNow = section(now, "params");
        for (const json::Member& parameter : section(stripped, "params")) {
            const json::Value* entryBefore = json::find(paramsBefore, parameter.key);
            if (entryBefore == nullptr || parameter.value.isNull()) continue;
            if (const json::Value* entryNow = json::find(paramsNow, parameter.key)) {
                checkParameter(plugin.key, parameter, membersOf(entryBefore), membersOf(entryNow));
            } else {
                findings.add(rule::removedParameter, subject.document.offsetOf(parameter.key),
                             "the new SDK's " + printable(plugin.key) +
                                 " no longer has the parameter " + inQuotes(parameter.key) +
                                 didYouMean(finder.among(paramsNow, parameter.key)));
            }
        }
    }

    void checkParameter(std::string_view plugin, const json::Member& parameter, json::Object before,
                        json::Object now) {
        const json::Object stripped = membersOf(parameter.value);
        const std::string owner = ownerName(plugin, parameter.key);
        for (const std::string_view key : {"type", "listType"}) {
            if (isSame(json::find(before, key), json::find(now, key))) continue;
            const json::Member* own = firstOf(stripped);
            if (own == nullptr) break;
            findings.add(rule::typeChanged, subject.document.offsetOf(own->key),
                         ("the SDK's " + inQuotes(key) + " of ").append(owner) + " changed from " +
                             shown(json::find(before, key)) + " to " + shown(json::find(now, key)) +
                             " below this");
        }
        const json::Member* own = findMember(stripped, "defaultValue");
        const json::Value* was = json::find(before, "defaultValue");
        const json::Value* is = json::find(now, "defaultValue");
        if (own == nullptr || isSame(was, is)) return;
        findings.add(rule::defaultChanged, own->value.offset(),
                     "the SDK's default of " + owner + " changed from " + shown(was) + " to " +
                         shown(is) + " below this one");
    }

    /// What the document says that a change of type matters to.
    static const json::Member* firstOf(json::Object stripped) {
        for (const std::string_view key :
             {"defaultValue", "type", "listType", "handler", "scaling"}) {
            if (const json::Member* member = findMember(stripped, key)) return member;
        }
        return nullptr;
    }

    const Subject& subject;
    json::Object live;
    json::Object previous;
    Findings& findings;
    NearestName finder;
};

}  // namespace

void checkUpgrade(const Subject& subject, json::Object previous, Findings& findings) {
    UpgradeCheck(subject, previous, findings).run();
}

}  // namespace metagen::lint

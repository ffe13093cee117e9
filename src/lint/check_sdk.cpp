#include <string>

#include "lint/checks.h"
#include "lint/nearest_name.h"
#include "lint/wording.h"
#include "metadata/key_order.h"

namespace metagen::lint {

namespace {

/// What combine takes out where null stands: plugins, and parameters and user data.
constexpr int pluginDepth = 1;
constexpr int entryDepth = 3;

class SdkCheck {
public:
    SdkCheck(const Subject& linted, json::Object previousBase, Findings& collected)
        : subject(linted), previousPlugins(section(previousBase, "plugins")), findings(collected) {}

    void run() {
        for (const json::Member* member : subject.unmerged()) {
            findings.add(rule::objectOverValue, member->value.offset(),
                         inQuotes(member->key) +
                             " is an object here, but the SDK has a single value "
                             "there, so combine ends");
        }
        checkObject(subject.stripped, subject.base, 0);
        for (const json::Member& plugin : section(subject.stripped, "plugins")) {
            checkPlugin(plugin);
        }
    }

private:
    void checkObject(json::Object stripped, json::Object live, int depth) {
        const bool mayBeTakenOut = depth == pluginDepth || depth == entryDepth;
        for (const auto& [key, value] : stripped) {
            const json::Value* liveValue = json::find(live, key);
            if (mayBeTakenOut && value.isNull()) {
                if (liveValue == nullptr) reportNull(key, live);
            } else if (liveValue != nullptr) {
                compare(key, value, *liveValue, depth);
            }
        }
    }

    void compare(std::string_view key, const json::Value& value, const json::Value& live,
                 int depth) {
        if (const auto members = value.object()) {
            checkObject(*members, membersOf(live), depth + 1);
        } else if (value.kind() == live.kind() &&
                   json::compactText(value) == json::compactText(live)) {
            findings.add(rule::duplicateOfSdk, subject.document.offsetOf(key),
                         inQuotes(key) + " is " + described(value) +
                             " in the SDK already; combine lists it among the duplications");
        }
    }

    void reportNull(std::string_view key, json::Object live) {
        findings.add(rule::nullOfUnknown, subject.document.offsetOf(key),
                     "the SDK has no " + inQuotes(key) + " that null could take out" +
                         didYouMean(finder.among(live, key)));
    }

    /// A plugin that the SDK lacks. One that folds to the SDK's is a matter of names.
    void checkPlugin(const json::Member& plugin) {
        const json::Object live = section(subject.base, "plugins");
        const auto members = plugin.value.object();
        if (!members || json::find(live, plugin.key) != nullptr) return;
        if (json::find(*members, "type") != nullptr) return;
        if (json::find(previousPlugins, plugin.key) != nullptr) return;
        const std::string_view nearest = finder.among(live, plugin.key);
        const CombinedKeyLess less;
        const bool folds =
            !nearest.empty() && !less(nearest, plugin.key) && !less(plugin.key, nearest);
        if (folds) return;
        findings.add(rule::unknownPlugin, subject.document.offsetOf(plugin.key),
                     "the SDK has no plugin " + inQuotes(plugin.key) + didYouMean(nearest) +
                         "; one of the host's own needs a \"type\"");
    }

    const Subject& subject;
    json::Object previousPlugins;
    Findings& findings;
    NearestName finder;
};

}  // namespace

void checkAgainstSdk(const Subject& subject, json::Object previous, Findings& findings) {
    SdkCheck(subject, previous, findings).run();
}

}  // namespace metagen::lint

#include <string>

#include "lint/checks.h"
#include "lint/shape.h"
#include "lint/wording.h"

namespace metagen::lint {

namespace {

class ShapeCheck {
public:
    ShapeCheck(const Subject& linted, Findings& collected) : subject(linted), findings(collected) {}

    void run() {
        checkVersion();
        checkPlugins();
        addUnknownKeys(subject.document, subject.stripped, level::document, findings);
        for (const json::Member& plugin : section(subject.stripped, "plugins")) {
            if (const auto members = plugin.value.object()) {
                checkPlugin(*members);
            } else if (!plugin.value.isNull()) {
                refuse(plugin, plugin.key, "an object, or null to take the plugin out");
            }
        }
    }

private:
    /// As the generators look for it.
    void checkVersion() {
        const json::Value* combined = json::find(subject.combined, "version");
        if (combined != nullptr && combined->number()) return;
        const json::Member* version = findMember(subject.stripped, "version");
        if (version != nullptr && !version->value.number()) {
            return refuse(*version, "version", "a number");
        }
        findings.add(rule::missingVersion, subject.document.root().offset(),
                     "the document has no \"version\", which genh and genm need: a number, the "
                     "version of the host's metadata");
    }

    void checkPlugins() {
        if (const json::Member* plugins = findMember(subject.stripped, "plugins")) {
            if (!plugins->value.isObject()) refuse(*plugins, "plugins", "an object");
        }
        const json::Value* combined = json::find(subject.combined, "plugins");
        const json::Value* merged = json::find(subject.merged, "plugins");
        const bool isKnown = merged != nullptr && !merged->isObject();
        if (isKnown || (combined != nullptr && combined->isObject())) return;
        findings.add(rule::missingPlugins, subject.document.root().offset(),
                     "another key takes the place of \"plugins\" in the combined document, so genh "
                     "and genm find none");
    }

    void checkPlugin(json::Object plugin) {
        addUnknownKeys(subject.document, plugin, level::plugin, findings);
        for (const json::Member& member : plugin) {
            const KnownKey* known = findKey(level::plugin, member.key);
            if (known == nullptr || known->fits(member.value)) continue;
            if (member.key != "type") {
                refuse(member, member.key, known->kinds);
            } else if (!subject.isUnmerged(member)) {
                findings.add(rule::ignoredKind, member.value.offset(),
                             wrongKindText(member.key, member.value, known->kinds) +
                                 ", so genm gives the plugin no category");
            }
        }
    }

    void refuse(const json::Member& member, std::string_view key, std::string_view kinds) {
        findings.add(rule::wrongKind, member.value.offset(),
                     wrongKindText(key, member.value, kinds) + ", so the commands end there");
    }

    const Subject& subject;
    Findings& findings;
};

}  // namespace

void checkShape(const Subject& subject, Findings& findings) { ShapeCheck(subject, findings).run(); }

}  // namespace metagen::lint

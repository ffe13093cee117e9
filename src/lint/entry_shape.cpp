#include "lint/entry_checks.h"

#include <algorithm>
#include <array>
#include <string>

#include "lint/shape.h"
#include "lint/wording.h"
#include "model/handlers.h"

namespace metagen::lint {

namespace {

constexpr std::array handlerWords = {handler_kind::color.word, handler_kind::floatNumber.word,
                                     handler_kind::duplicate.word, handler_kind::fileBrowserWord};

class EntryShapeCheck {
public:
    EntryShapeCheck(const Subject& linted, bool isEntryRefused, Findings& collected)
        : subject(linted), isRefused(isEntryRefused), findings(collected) {}

    void run(const json::Member& entry) {
        const auto members = entry.value.object();
        if (!members) {
            if (isRefused) {
                report(rule::wrongKind, entry, "an object", ", so the commands end there");
            }
            return;
        }
        addUnknownKeys(subject.document, *members, level::entry, findings);
        for (const json::Member& member : *members) checkMember(member);
    }

private:
    void checkMember(const json::Member& member) {
        const KnownKey* known = findKey(level::entry, member.key);
        if (known == nullptr || subject.isUnmerged(member)) return;
        if (!known->fits(member.value)) return reportKind(member, known->kinds);
        if (member.key == "handler") checkHandler(member.value);
        if (member.key == "handlerinfo") checkInfo(membersOf(member.value));
        if (member.key == "scaling") checkScaling(membersOf(member.value));
    }

    void checkHandler(const json::Value& value) {
        const std::string_view word = *value.text();
        if (std::ranges::find(handlerWords, word) != handlerWords.end()) return;
        findings.add(rule::unknownHandler, value.offset(),
                     inQuotes(word) + " is no handler that metagen knows" +
                         didYouMean(word, handlerWords) + ", so genh leaves the parameter out");
    }

    void checkInfo(json::Object info) {
        const json::Member* mode = findMember(info, "loadMode");
        if (mode != nullptr && !mode->value.text()) reportKind(*mode, "a text");
    }

    void checkScaling(json::Object scaling) {
        addUnknownKeys(subject.document, scaling, level::scaling, findings);
        checkKinds(scaling, level::scaling);
        const json::Value* conditions = json::find(scaling, "conditions");
        if (conditions == nullptr) return;
        for (const json::Value& condition : conditions->array().value_or(json::Array())) {
            if (const auto members = condition.object()) {
                addUnknownKeys(subject.document, *members, level::condition, findings);
                checkKinds(*members, level::condition);
            } else {
                findings.add(rule::ignoredKind, condition.offset(),
                             std::string("a condition must be an object; this is ")
                                     .append(kindInWords(condition)) +
                                 ", so it is passed over");
            }
        }
    }

    /// What is below a scaling is never refused for its kind.
    void checkKinds(json::Object object, const Level& level) {
        for (const json::Member& member : object) {
            const KnownKey* known = findKey(level, member.key);
            if (known == nullptr || known->fits(member.value)) continue;
            report(rule::ignoredKind, member, known->kinds, ", so it is passed over");
        }
    }

    void reportKind(const json::Member& member, std::string_view kinds) {
        if (isRefused) {
            report(rule::wrongKind, member, kinds, ", so the commands end there");
        } else {
            report(rule::ignoredKind, member, kinds, ", so it is passed over");
        }
    }

    void report(const Rule& rule, const json::Member& member, std::string_view kinds,
                std::string_view consequence) {
        findings.add(rule, member.value.offset(),
                     wrongKindText(member.key, member.value, kinds).append(consequence));
    }

    const Subject& subject;
    bool isRefused;
    Findings& findings;
};

}  // namespace

void checkEntryShape(const Subject& subject, const json::Member& entry, bool isRefused,
                     Findings& findings) {
    EntryShapeCheck(subject, isRefused, findings).run(entry);
}

}  // namespace metagen::lint

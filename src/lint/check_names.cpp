#include <algorithm>
#include <string>

#include "combine/merge.h"
#include "lint/checks.h"
#include "lint/wording.h"
#include "metadata/key_order.h"

namespace metagen::lint {

namespace {

/// What becomes of a key that is written as it stands, without the escapes that JSON asks for.
enum class Written : std::uint8_t { asItIs, asAnother, unreadable };

Written written(std::string_view key) {
    if (!needsEscape(key)) return Written::asItIs;
    const json::Member member = {key, json::Value()};
    const json::Document document(combinedText(json::Object(&member, 1)));
    return document.isValid() ? Written::asAnother : Written::unreadable;
}

class NameCheck {
public:
    NameCheck(const Subject& linted, Findings& collected) : subject(linted), findings(collected) {}

    void run() {
        const std::size_t errorsBefore = findings.errorCount();
        checkObject(subject.stripped, subject.merged, subject.base);
        if (subject.isReadable || findings.errorCount() > errorsBefore) return;
        // Names that can be read by themselves break each other.
        findings.add(rule::unreadableName, suspect,
                     "what combine writes of this name and others is no JSON, so genh and genm "
                     "can't read it");
    }

private:
    /// Objects within arrays are written by the JSON library, with escapes and without folding.
    void checkObject(json::Object object, json::Object mergedObject, json::Object live) {
        checkFolding(object, mergedObject);
        for (const auto& [key, value] : object) {
            checkKey(key);
            const auto members = value.object();
            if (!members) continue;
            checkObject(*members, section(mergedObject, key), section(live, key));
        }
    }

    void checkKey(std::string_view key) {
        const Written form = written(key);
        if (form == Written::asItIs) return;
        const std::uint32_t place = subject.document.offsetOf(key);
        if (suspect == 0) suspect = place;
        if (form == Written::unreadable && !subject.isReadable) {
            findings.add(rule::unreadableName, place,
                         "combine writes " + inQuotes(key) +
                             " without escapes, which is no JSON: genh and genm can't read that");
        } else {
            findings.add(rule::changedName, place,
                         "combine writes " + inQuotes(key) +
                             " without escapes, so genh and genm read another name");
        }
    }

    void checkFolding(json::Object object, json::Object mergedObject) {
        if (!hasFoldedKeys(mergedObject)) return;
        std::vector<const json::Member*> members;
        members.reserve(mergedObject.size());
        for (const json::Member& member : mergedObject) members.push_back(&member);
        const auto less = [](const json::Member* left, const json::Member* right) {
            return CombinedKeyLess()(left->key, right->key);
        };
        // In byte order of the keys, of which the writer keeps the first.
        std::ranges::stable_sort(members, less);
        const json::Member* kept = nullptr;
        for (const json::Member* member : members) {
            if (kept == nullptr || less(kept, member)) {
                kept = member;
            } else {
                report(kept->key, member->key, object);
            }
        }
    }

    void report(std::string_view keptKey, std::string_view droppedKey, json::Object object) {
        const json::Member* kept = findMember(object, keptKey);
        const json::Member* dropped = findMember(object, droppedKey);
        const std::string pair = inQuotes(droppedKey) + " and " + inQuotes(keptKey);
        if (dropped != nullptr) {
            Finding& finding =
                findings.add(rule::foldedKey, subject.document.offsetOf(dropped->key),
                             pair + (kept != nullptr ? "" : ", which the SDK has,") +
                                 " are one name in the combined document: this one is dropped");
            if (kept == nullptr) return;
            finding.notes.push_back({subject.document.offsetOf(kept->key), "this one is kept"});
        } else if (kept != nullptr) {
            findings.add(rule::foldedKey, subject.document.offsetOf(kept->key),
                         inQuotes(keptKey) + " and the SDK's " + inQuotes(droppedKey) +
                             " are one name in the combined document: the SDK's is dropped");
        }
    }

    const Subject& subject;
    Findings& findings;
    std::uint32_t suspect = 0;  ///< where the first name stands that isn't written as it is
};

}  // namespace

void checkRepeatedKeys(const json::Document& document, Findings& findings) {
    for (const auto& [earlier, later] : document.repeatedKeys()) {
        Finding& finding = findings.add(
            rule::duplicateKey, document.offsetOf(later),
            inQuotes(later) + " is given twice in this object; only the last one counts");
        finding.notes.push_back({document.offsetOf(earlier), "given here before"});
    }
}

void checkNames(const Subject& subject, Findings& findings) { NameCheck(subject, findings).run(); }

}  // namespace metagen::lint

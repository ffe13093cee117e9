#include "lint/subject.h"

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <utility>

#include "combine/combine_report.h"
#include "combine/merge.h"
#include "metadata/key_order.h"
#include "support/escapes.h"

namespace metagen::lint {

namespace {

/// Copies a stripped object without the members that the merge would refuse.
class Pruner {
public:
    Pruner(Arena& nodeArena, std::vector<const json::Member*>& prunedMembers)
        : arena(nodeArena), pruned(prunedMembers) {}

    json::Object copy(json::Object stripped, json::Object live) {
        std::vector<json::Member> kept;
        for (const json::Member& member : stripped) {
            const json::Value* liveValue = json::find(live, member.key);
            const auto members = member.value.object();
            if (liveValue == nullptr || !members) {
                kept.push_back(member);
            } else if (const auto liveMembers = liveValue->object()) {
                kept.push_back(
                    {member.key,
                     json::Value(copy(*members, *liveMembers)).withOffset(member.value.offset())});
            } else {
                pruned.push_back(&member);
            }
        }
        return arena.keep(json::Object(kept));
    }

private:
    Arena& arena;
    std::vector<const json::Member*>& pruned;
};

bool isNotLess(const json::Member& left, const json::Member& right) {
    return !CombinedKeyLess()(left.key, right.key);
}

/// Whether the generators read the object that is written as that object: combine writes all names
/// without escapes, and of those that fold to one only the first.
bool isReadAsItIs(json::Object object) {
    return !hasFoldedKeys(object) && std::ranges::all_of(object, [](const json::Member& member) {
        return !needsEscape(member.key) && isReadAsItIs(membersOf(member.value));
    });
}

}  // namespace

bool needsEscape(std::string_view name) {
    const char* const end = name.data() + name.size();
    return findSpecial<'"', '\\'>(name.data(), end) != end;
}

bool hasFoldedKeys(json::Object object) {
    // Most objects are in the combined order without "type", which equals no other key.
    const json::Member* last = nullptr;
    const bool isInOrder = std::ranges::all_of(object, [&last](const json::Member& member) {
        if (member.key == "type") return true;
        const json::Member* const before = std::exchange(last, &member);
        return before == nullptr || !isNotLess(*before, member);
    });
    if (isInOrder) return false;
    std::vector<json::Member> members(object.begin(), object.end());
    std::ranges::sort(members, CombinedKeyLess(), &json::Member::key);
    return std::ranges::adjacent_find(members, isNotLess) != members.end();
}

const json::Member* findMember(json::Object object, std::string_view key) {
    const auto member = std::ranges::lower_bound(object, key, {}, &json::Member::key);
    return member == object.end() || member->key != key ? nullptr : &*member;
}

json::Object section(json::Object object, std::string_view key) {
    return membersOf(json::find(object, key));
}

Subject::Subject(const json::Document& strippedDocument, const json::Document& baseDocument)
    : document(strippedDocument),
      stripped(json::asObject(strippedDocument.root())),
      base(json::asObject(baseDocument.root())) {
    mergeDocuments();
    combined = merged;
    // With its escapes a text has six times its bytes at most.
    const std::size_t size = document.text().size() + baseDocument.text().size();
    if (size < json::maximumSize / 6 && isReadAsItIs(merged)) return;
    written.emplace(metagen::combinedText(merged, size));
    isReadable = written->isValid();
    if (isReadable) combined = json::asObject(written->root());
}

std::string Subject::combinedText() const {
    return metagen::combinedText(merged, document.text().size());
}

// Only the merge itself decides whether there is anything to do without.
void Subject::mergeDocuments() {
    CombineReport report;
    try {
        merged = merge(stripped, base, arena, report);
    } catch (const std::runtime_error&) {
        merged = merge(Pruner(arena, pruned).copy(stripped, base), base, arena, report);
        std::ranges::sort(pruned, std::less<>());
    }
}

bool Subject::isUnmerged(const json::Member& member) const {
    return std::ranges::binary_search(pruned, &member, std::less<>());
}

Subject::Found Subject::find(std::initializer_list<std::string_view> path) const {
    Found found;
    json::Object object = stripped;
    std::size_t depth = 0;
    for (const std::string_view key : path) {
        const json::Member* member = findMember(object, key);
        if (member == nullptr) return found;
        ++depth;
        // "plugins", "params" and "userData" are not what a message speaks of.
        found.isWhole = depth == path.size();
        if (found.isWhole || (depth != 1 && depth != 3)) found.member = member;
        object = membersOf(member->value);
    }
    return found;
}

std::uint32_t Subject::keyPlace(std::initializer_list<std::string_view> path) const {
    const Found found = find(path);
    return found.member == nullptr ? 0 : document.offsetOf(found.member->key);
}

std::uint32_t Subject::valuePlace(std::initializer_list<std::string_view> path) const {
    const Found found = find(path);
    if (found.member == nullptr) return 0;
    return found.isWhole ? found.member->value.offset() : document.offsetOf(found.member->key);
}

}  // namespace metagen::lint

#include "lint/subject.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "combine/combine_report.h"
#include "combine/merge.h"

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

}  // namespace

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
    written.emplace(
        metagen::combinedText(merged, document.text().size() + baseDocument.text().size()));
    isReadable = written->isValid();
    if (isReadable) combined = json::asObject(written->root());
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

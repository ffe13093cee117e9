#include "combine/combined_document.h"

#include <algorithm>
#include <span>
#include <vector>

#include "metadata/key_order.h"

namespace metagen {

namespace {

using Member = json::Object::value_type;

bool memberLess(const Member* left, const Member* right) {
    return CombinedKeyLess()(left->first, right->first);
}

bool memberNotLess(const Member* left, const Member* right) { return !memberLess(left, right); }

/// Puts "type" first, which is all that most objects need to be in the combined order.
void moveTypeFirst(std::span<const Member*> members) {
    const auto type =
        std::ranges::find_if(members, [](const Member* member) { return member->first == "type"; });
    if (type != members.end()) std::rotate(members.begin(), type, type + 1);
}

class DocumentWriter {
public:
    void append(const json::Object& object) {
        const std::size_t begin = members.size();
        for (const Member& member : object) members.push_back(&member);
        arrange(begin);
        const std::size_t end = members.size();
        text += '{';
        for (std::size_t i = begin; i < end; ++i) {
            if (i > begin) text += ',';
            appendMember(*members[i]);
        }
        text += '}';
        members.resize(begin);
    }

    std::string text;

private:
    /// Brings the members from begin on into the combined order and drops all but the first of
    /// equal ones; they come in byte order.
    void arrange(std::size_t begin) {
        const auto first = members.begin() + static_cast<std::ptrdiff_t>(begin);
        moveTypeFirst({first, members.end()});
        if (std::adjacent_find(first, members.end(), memberNotLess) == members.end()) return;
        std::stable_sort(first, members.end(), memberLess);
        members.erase(std::unique(first, members.end(), memberNotLess), members.end());
    }

    void appendMember(const Member& member) {
        text += '"';
        text += member.first;  // deliberately as it is, like the names in the base document
        text += "\":";
        if (member.second.is<json::Object>()) {
            append(json::asObject(member.second));
        } else {
            json::appendCompactText(text, member.second);
        }
    }

    std::vector<const Member*> members;  ///< of all objects that are being written
};

}  // namespace

std::string combinedDocument(const json::Object& document) {
    DocumentWriter writer;
    writer.append(document);
    return std::move(writer.text);
}

}  // namespace metagen

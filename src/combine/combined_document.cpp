#include "combine/merge.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "metadata/key_order.h"
#include "support/memory.h"

namespace metagen {

namespace {

bool memberLess(const json::Member* left, const json::Member* right) {
    return CombinedKeyLess()(left->key, right->key);
}

bool memberNotLess(const json::Member* left, const json::Member* right) {
    return !memberLess(left, right);
}

class CombinedWriter {
public:
    void append(json::Object object) {
        const std::size_t begin = members.size();
        for (const json::Member& member : object) members.push_back(&member);
        arrange(begin);
        const std::size_t end = members.size();
        out += '{';
        for (std::size_t i = begin; i < end; ++i) {
            if (i > begin) out += ',';
            append(*members[i]);
        }
        out += '}';
        members.resize(begin);
    }

    std::string out;

private:
    /// Brings the members from begin on into the combined order and drops all but the first of
    /// equal ones; they come in byte order. With "type" first, most objects are in order.
    void arrange(std::size_t begin) {
        const auto first = members.begin() + static_cast<std::ptrdiff_t>(begin);
        const auto type = std::ranges::find(first, members.end(), "type", &json::Member::key);
        if (type != members.end()) std::rotate(first, type, type + 1);
        if (std::adjacent_find(first, members.end(), memberNotLess) == members.end()) return;
        std::stable_sort(first, members.end(), memberLess);
        members.erase(std::unique(first, members.end(), memberNotLess), members.end());
    }

    void append(const json::Member& member) {
        out += '"';
        out += member.key;  // deliberately as it is, like the names in the base document
        out += "\":";
        if (const auto object = member.value.object()) {
            append(*object);
        } else {
            json::appendCompactText(out, member.value);
        }
    }

    std::vector<const json::Member*> members;  ///< of all objects that are being written
};

}  // namespace

std::string combinedText(json::Object document, std::size_t expectedSize) {
    CombinedWriter writer;
    reserveText(writer.out, expectedSize);
    writer.append(document);
    return std::move(writer.out);
}

}  // namespace metagen

#include "combine/combined_document.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "metadata/key_order.h"
#include "support/text_file.h"

namespace metagen {

namespace {

const PluginTexts noTexts;

/// A member of an object that is being written: a value, or its text where that is ready.
struct Member {
    std::string_view key;
    const json::Value* value = nullptr;
    const std::string* text = nullptr;
};

bool memberLess(const Member& left, const Member& right) {
    return CombinedKeyLess()(left.key, right.key);
}

bool memberNotLess(const Member& left, const Member& right) { return !memberLess(left, right); }

/// Puts "type" first, which is all that most objects need to be in the combined order.
void moveTypeFirst(std::span<Member> members) {
    const auto type = std::ranges::find(members, std::string_view("type"), &Member::key);
    if (type != members.end()) std::rotate(members.begin(), type, type + 1);
}

}  // namespace

class CombinedDocument::Writer {
public:
    Writer(CombinedDocument& combined, const json::Object& document, const PluginTexts& pluginTexts)
        : out(combined), plugins(json::find(document, "plugins")), furtherPlugins(pluginTexts) {}

    void append(const json::Object& object, const PluginTexts& furtherMembers) {
        const std::size_t begin = members.size();
        addMembers(object, furtherMembers);
        arrange(begin);
        const std::size_t end = members.size();
        out.ownText += '{';
        for (std::size_t i = begin; i < end; ++i) {
            if (i > begin) out.ownText += ',';
            appendMember(members[i]);  // a copy, since it may add members of its own
        }
        out.ownText += '}';
        members.resize(begin);
    }

private:
    /// Adds the members of both, which are in byte order each, in byte order.
    void addMembers(const json::Object& object, const PluginTexts& furtherMembers) {
        const auto begin = static_cast<std::ptrdiff_t>(members.size());
        for (const auto& [key, value] : object) members.push_back({key, &value, nullptr});
        if (furtherMembers.empty()) return;
        const auto middle = static_cast<std::ptrdiff_t>(members.size());
        for (const auto& [key, text] : furtherMembers) members.push_back({key, nullptr, &text});
        std::inplace_merge(
            members.begin() + begin, members.begin() + middle, members.end(),
            [](const Member& left, const Member& right) { return left.key < right.key; });
    }

    /// Brings the members from begin on into the combined order and drops all but the first of
    /// equal ones; they come in byte order.
    void arrange(std::size_t begin) {
        const auto first = members.begin() + static_cast<std::ptrdiff_t>(begin);
        moveTypeFirst({first, members.end()});
        if (std::adjacent_find(first, members.end(), memberNotLess) == members.end()) return;
        std::stable_sort(first, members.end(), memberLess);
        members.erase(std::unique(first, members.end(), memberNotLess), members.end());
    }

    void appendMember(Member member) {
        std::string& text = out.ownText;
        text += '"';
        text += member.key;  // deliberately as it is, like the names in the base document
        text += "\":";
        if (member.text != nullptr) {
            out.insertions.push_back({text.size(), member.text});
        } else if (member.value->is<json::Object>()) {
            append(json::asObject(*member.value),
                   member.value == plugins ? furtherPlugins : noTexts);
        } else {
            json::appendCompactText(text, *member.value);
        }
    }

    CombinedDocument& out;
    const json::Value* plugins;
    const PluginTexts& furtherPlugins;
    std::vector<Member> members;  ///< of all objects that are being written
};

CombinedDocument::CombinedDocument(const json::Object& document,
                                   const PluginTexts& furtherPlugins) {
    Writer(*this, document, furtherPlugins).append(document, noTexts);
}

template <typename Append>
void CombinedDocument::forEachPiece(const Append& append) const {
    std::string_view rest = ownText;
    std::size_t begin = 0;
    for (const Insertion& insertion : insertions) {
        append(rest.substr(0, insertion.place - begin));
        append(*insertion.plugin);
        rest.remove_prefix(insertion.place - begin);
        begin = insertion.place;
    }
    append(rest);
}

void CombinedDocument::write(std::FILE* file) const {
    PieceWriter writer(file);
    forEachPiece([&writer](std::string_view piece) { writer.append(piece); });
    writer.finish();
}

std::string CombinedDocument::text() const {
    std::string document;
    forEachPiece([&document](std::string_view piece) { document += piece; });
    return document;
}

}  // namespace metagen

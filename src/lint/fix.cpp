#include "lint/fix.h"

#include <algorithm>
#include <stdexcept>

#include "lint/subject.h"

namespace metagen::lint {

namespace {

using Offsets = std::vector<std::uint32_t>;

bool contains(const Offsets& sorted, std::size_t offset) {
    return std::ranges::binary_search(sorted, offset);
}

/// Walks the bytes of a valid document, where all members stand, repeated ones included.
class Remover {
public:
    Remover(std::string_view documentText, const Offsets& wantedKeys, const Offsets& fixedKeys)
        : text(documentText), wanted(wantedKeys), fixed(fixedKeys) {}

    /// The text without what is wanted out of the object that begins there.
    std::string without(std::size_t begin) {
        const Object object = walk(begin);
        if (object.isLeftEmpty) cuts.push_back(object.content);
        std::ranges::sort(cuts, {}, &Range::begin);
        std::string out;
        std::size_t kept = 0;
        for (const Range& cut : cuts) {
            out += text.substr(kept, cut.begin - kept);
            kept = cut.end;
        }
        return out += text.substr(kept);
    }

private:
    struct Range {
        std::size_t begin;
        std::size_t end;
    };

    struct Object {
        std::size_t end = 0;  ///< behind the closing bracket
        bool isLeftEmpty = false;
        Range content = {};  ///< from the first key to the end of the last value
    };

    struct Member {
        std::size_t end;
        bool isRemoved;
    };

    Object walk(std::size_t begin) {
        Object object;
        std::size_t at = skipBlanks(begin + 1);
        object.content = {at, at};
        bool isCut = false;
        bool hasKept = false;
        while (text[at] != '}') {
            const Member member = walkMember(at);
            // The comma before a member goes along, or that behind it where nothing stays before.
            if (member.isRemoved && hasKept) cuts.push_back({object.content.end, member.end});
            if (!member.isRemoved && !hasKept && isCut) {
                cuts.push_back({object.content.begin, at});
            }
            (member.isRemoved ? isCut : hasKept) = true;
            object.content.end = member.end;
            at = skipBlanks(member.end);
            if (text[at] == ',') at = skipBlanks(at + 1);
        }
        object.end = at + 1;
        object.isLeftEmpty = isCut && !hasKept;
        return object;
    }

    Member walkMember(std::size_t key) {
        const std::size_t value = skipBlanks(skipBlanks(skipString(key)) + 1);
        const std::size_t cutsBefore = cuts.size();
        const Object inner =
            text[value] == '{' ? walk(value) : Object{.end = skipValue(value), .content = {}};
        const bool isRemoved =
            !contains(fixed, key) && (inner.isLeftEmpty || contains(wanted, key));
        if (isRemoved) {
            cuts.resize(cutsBefore);  // what is within goes along
        } else if (inner.isLeftEmpty) {
            cuts.push_back(inner.content);
        }
        return {inner.end, isRemoved};
    }

    [[nodiscard]] std::size_t skipBlanks(std::size_t at) const {
        return text.find_first_not_of(" \t\r\n", at);
    }

    [[nodiscard]] std::size_t skipString(std::size_t at) const {
        for (++at; text[at] != '"'; ++at) {
            if (text[at] == '\\') ++at;
        }
        return at + 1;
    }

    /// Of anything; in arrays nothing is taken out.
    [[nodiscard]] std::size_t skipValue(std::size_t at) const {
        if (text[at] == '"') return skipString(at);
        if (text[at] != '[' && text[at] != '{') return text.find_first_of(",]} \t\r\n", at);
        std::size_t depth = 0;
        do {
            if (text[at] == '"') {
                at = skipString(at);
                continue;
            }
            if (text[at] == '[' || text[at] == '{') ++depth;
            if (text[at] == ']' || text[at] == '}') --depth;
            ++at;
        } while (depth > 0);
        return at;
    }

    std::string_view text;
    const Offsets& wanted;
    const Offsets& fixed;
    std::vector<Range> cuts;
};

}  // namespace

bool isFixable(const Finding& finding) {
    return finding.rule == &rule::duplicateOfSdk || finding.rule == &rule::nullOfUnknown;
}

std::string fixedText(const json::Document& stripped, const json::Document& base,
                      const std::vector<Finding>& findings) {
    Offsets wanted;
    for (const Finding& finding : findings) {
        if (isFixable(finding)) wanted.push_back(finding.offset);
    }
    if (wanted.empty()) return stripped.text();
    std::ranges::sort(wanted);
    Offsets fixed;  // without the later one of two equal keys the earlier one would count
    for (const auto& [earlier, later] : stripped.repeatedKeys()) {
        fixed.push_back(stripped.offsetOf(earlier));
        fixed.push_back(stripped.offsetOf(later));
    }
    std::ranges::sort(fixed);
    std::string text = Remover(stripped.text(), wanted, fixed).without(stripped.root().offset());

    const json::Document after(text);
    const bool isSame =
        after.isValid() && after.root().isObject() &&
        Subject(after, base).combinedText() == Subject(stripped, base).combinedText();
    if (!isSame) throw std::logic_error("the fixed document would not be combined to the same");
    return text;
}

}  // namespace metagen::lint

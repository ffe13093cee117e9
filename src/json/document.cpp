#include "json/document.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include "json/input.h"
#include "support/end_run.h"

namespace metagen::json {

namespace {

bool sameKey(const Member& left, const Member& right) { return left.key == right.key; }

/// By the keys' bytes; most keys differ in the first one.
int compareKeys(const Member& left, const Member& right) {
    if (left.key.empty() || right.key.empty()) return left.key.compare(right.key);
    const auto first = static_cast<unsigned char>(left.key.front());
    const auto other = static_cast<unsigned char>(right.key.front());
    return first != other ? first - other : left.key.compare(right.key);
}

/// Equal keys in the order of the document.
bool comesBefore(const Member& left, const Member& right) {
    const int order = compareKeys(left, right);
    return order < 0 || (order == 0 && left.value.offset() < right.value.offset());
}

bool keyNotLess(const Member& left, const Member& right) { return compareKeys(left, right) >= 0; }

/// What the library's parser tells of a document, as it has it from its own context for trees. That
/// one leaves the nesting of objects open and throws numbers beyond a double out of the parser.
class TreeBuilder {
public:
    TreeBuilder(Arena& nodeArena, std::vector<RepeatedKey>& repeatedKeys)
        : arena(nodeArena), repeated(repeatedKeys) {}

    /// Reads a value, to be taken from `result`.
    bool parseValue(Input& in) {
        in.skip_ws();
        const std::uint32_t offset = in.offset();
        if (!picojson::_parse(*this, in) || numberOverflow) return false;
        value = value.withOffset(offset);
        return true;
    }

    [[nodiscard]] const Value& result() const { return value; }

    // The rest is what the library calls.
    // NOLINTBEGIN(readability-identifier-naming): by these names

    bool set_null() { return set(Value()); }
    bool set_bool(bool boolean) { return set(Value(boolean)); }

    /// The library doesn't look at what this returns.
    bool set_number(double number) {
        numberOverflow = !std::isfinite(number);
        return set(Value(number));
    }

    bool parse_string(Input& in) { return in.takeString() && set(Value(in.lastString())); }

    bool parse_array_start() {
        if (depthLeft == 0 || arrayDepthLeft == 0) return false;
        --depthLeft;
        --arrayDepthLeft;
        return true;
    }

    bool parse_array_item(Input& in, std::size_t /*index*/) {
        if (!parseValue(in)) return false;
        elements.push_back(value);
        return true;
    }

    bool parse_array_stop(std::size_t count) {
        const auto first = elements.end() - static_cast<std::ptrdiff_t>(count);
        value = Value(arena.keep(Array(first, elements.end())));
        elements.erase(first, elements.end());
        ++arrayDepthLeft;
        ++depthLeft;
        return true;
    }

    bool parse_object_start() {
        if (depthLeft == 0 || arrayDepthLeft == 0) return false;
        --depthLeft;
        openObjects.push_back(members.size());
        return true;
    }

    bool parse_object_item(Input& in, const std::string& /*key*/) {
        const std::string_view key = in.lastString();
        if (!parseValue(in)) return false;
        members.push_back({key, value});
        return true;
    }

    bool parse_object_stop() {
        const auto first = members.begin() + static_cast<std::ptrdiff_t>(openObjects.back());
        value = Value(arena.keep(Object(sorted(first), members.end())));
        members.erase(first, members.end());
        openObjects.pop_back();
        ++depthLeft;
        return true;
    }
    // NOLINTEND(readability-identifier-naming)

private:
    using MemberIterator = std::vector<Member>::iterator;

    bool set(const Value& newValue) {
        value = newValue;
        return true;
    }

    /// Puts the members from the first on in order, of equal keys the last one. The result begins
    /// where the members that are left do. Most documents have them in order.
    MemberIterator sorted(MemberIterator first) {
        if (std::adjacent_find(first, members.end(), keyNotLess) == members.end()) return first;
        std::sort(first, members.end(), comesBefore);
        for (auto same = std::adjacent_find(first, members.end(), sameKey); same != members.end();
             same = std::adjacent_find(same + 1, members.end(), sameKey)) {
            repeated.push_back({same->key, same[1].key});
        }
        const auto firstBackwards = std::make_reverse_iterator(first);
        return std::unique(members.rbegin(), firstBackwards, sameKey).base();
    }

    Arena& arena;
    std::vector<RepeatedKey>& repeated;
    Value value;
    std::vector<Value> elements;           ///< of all arrays that are being read
    std::vector<Member> members;           ///< of all objects that are being read
    std::vector<std::size_t> openObjects;  ///< where the members of each begin
    std::size_t depthLeft = maximumDepth;
    std::size_t arrayDepthLeft = picojson::DEFAULT_MAX_DEPTHS;
    bool numberOverflow = false;
};

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

}  // namespace

Document::Document(std::string text) : ownText(std::move(text)) {
    Input in(ownText, arena);
    TreeBuilder builder(arena, repeated);
    if (ownText.size() <= maximumSize && builder.parseValue(in)) {
        rootValue = builder.result();
    } else {
        lineOfError = in.line();
    }
    bytesRead = in.offset();
}

std::uint32_t Document::offsetOf(std::string_view key) const {
    const char* const begin = ownText.data();
    const char* const end = begin + ownText.size();
    if (std::less_equal<>()(begin, key.data()) && std::less<>()(key.data(), end)) {
        return static_cast<std::uint32_t>(key.data() - begin) - 1;
    }
    // A key with escapes lies in the arena, behind its offset.
    std::uint32_t offset = 0;
    std::memcpy(&offset, key.data() - sizeof offset, sizeof offset);
    return offset;
}

Object objectOrExit(const Value& value, std::string_view message) {
    const std::optional<Object> members = value.object();
    requireOrExit(members.has_value(), message);
    return *members;
}

Place PlaceFinder::placeAt(std::size_t offset) {
    if (offset < reached) {
        reached = 0;
        place = {};
    }
    for (; reached < offset; ++reached) {
        const char byte = document.text()[reached];
        if (byte == '\n') {
            place = {place.line + 1, 1};
        } else if (!isContinuation(byte)) {
            ++place.column;
        }
    }
    return place;
}

}  // namespace metagen::json

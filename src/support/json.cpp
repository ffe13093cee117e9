#include "support/json.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <iterator>
#include <utility>

#include "support/json_input.h"
#include "support/special_bytes.h"
#include "support/standard_errors.h"

namespace metagen::json {

namespace {

/// The library's own parse context with two additions: a bound on the nesting of objects, which
/// the library leaves open, and numbers beyond a double noted instead of thrown out of the parser
/// (which does not look at what set_number returns).
class BoundedContext : public picojson::default_parse_context {
public:
    BoundedContext(Value* out, std::size_t arrayDepth, std::size_t depth, bool& overflow)
        : default_parse_context(out, arrayDepth), remaining(depth), numberOverflow(overflow) {}

    bool set_number(double number) {
        if (std::isfinite(number)) return default_parse_context::set_number(number);
        numberOverflow = true;
        return false;
    }

    bool parse_array_start() { return remaining > 0 && default_parse_context::parse_array_start(); }

    bool parse_string(Input& in) {
        *out_ = Value(picojson::string_type, false);
        return _parse_string(out_->get<std::string>(), in);
    }

    bool parse_array_item(Input& in, std::size_t /*index*/) {
        return parseInto(out_->get<Array>().emplace_back(), in);
    }

    bool parse_object_start() {
        return remaining > 0 && default_parse_context::parse_object_start();
    }

    bool parse_object_item(Input& in, const std::string& key) {
        // Documents list most members in ascending order: the end is the place to try first.
        Object& object = out_->get<Object>();
        return parseInto(object.try_emplace(object.end(), key)->second, in);
    }

private:
    bool parseInto(Value& item, Input& in) {
        BoundedContext context(&item, depths_, remaining - 1, numberOverflow);
        return picojson::_parse(context, in) && !numberOverflow;
    }

    std::size_t remaining;
    bool& numberOverflow;
};

}  // namespace

std::optional<Value> parse(std::string_view text) {
    int errorLine = 0;
    return parse(text, errorLine);
}

std::optional<Value> parse(std::string_view text, int& errorLine) {
    Value value;
    bool numberOverflow = false;
    BoundedContext context(&value, picojson::DEFAULT_MAX_DEPTHS, maximumDepth, numberOverflow);
    Input in(text);
    if (!picojson::_parse(context, in) || numberOverflow) {
        errorLine = in.line();
        return std::nullopt;
    }
    return value;
}

Value& keepToProcessEnd(Value document) {
    static auto& kept = *new std::deque<Value>;  // reachable, so that leak checkers see no leak
    return kept.emplace_back(std::move(document));
}

const Value* find(const Object& object, std::string_view key) {
    // The library looks a key up as a text of its own, which costs more than a walk along the few
    // members that most objects have.
    constexpr std::size_t fewMembers = 8;
    const auto member = object.size() <= fewMembers
                            ? std::ranges::find(object, key,
                                                [](const auto& candidate) -> std::string_view {
                                                    return candidate.first;
                                                })
                            : object.find(std::string(key));
    return member == object.end() ? nullptr : &member->second;
}

const Value& at(const Object& object, std::string_view key) {
    const Value* value = find(object, key);
    if (value == nullptr) throwInvalidMapKey();
    return *value;
}

const Object& asObject(const Value& value) { return value.get<Object>(); }

Object& asObject(Value& value) { return value.get<Object>(); }

const std::string& asString(const Value& value) { return value.get<std::string>(); }

std::string compactText(const Value& value) {
    std::string text;
    appendCompactText(text, value);
    return text;
}

void appendCompactText(std::string& out, const Value& value) {
    if (value.is<std::string>()) return appendCompactText(out, asString(value));
    value.serialize(std::back_inserter(out));
}

/// In runs of bytes that the library would not escape.
void appendCompactText(std::string& out, std::string_view text) {
    picojson::serialize_str_char<std::back_insert_iterator<std::string>> appendByte = {
        std::back_inserter(out)};
    out += '"';
    const char* rest = text.data();
    const char* const end = rest + text.size();
    while (true) {
        const char* const special = findSpecial<'"', '\\', '/', '\x7f'>(rest, end);
        out.append(rest, special);
        if (special == end) break;
        appendByte(*special);
        rest = special + 1;
    }
    out += '"';
}

}  // namespace metagen::json

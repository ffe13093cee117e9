#include "combine/merge.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace metagen {

namespace {

/// What the keys of an object name, by the depth of the object that holds them.
constexpr int pluginDepth = 1;
constexpr int parameterDepth = 3;

class Merge {
public:
    Merge(Arena& nodeArena, CombineReport& combineReport)
        : arena(nodeArena), report(combineReport) {}

    json::Object mergeObjects(json::Object stripped, json::Object live, int depth) {
        const auto begin = static_cast<std::ptrdiff_t>(members.size());
        auto next = live.begin();  // both have their members in the same order
        for (const auto& [key, value] : stripped) {
            enter(key, depth);
            const auto place =
                std::ranges::lower_bound(next, live.end(), key, {}, &json::Member::key);
            members.insert(members.end(), next, place);
            const bool isLive = place != live.end() && place->key == key;
            next = isLive ? place + 1 : place;
            if (isDeprecated(value, depth)) {
                if (isLive) report.recordDeprecation();
            } else if (isLive) {
                const json::Value merged = mergeValues(key, value, place->value, depth);
                members.push_back({place->key, merged});
            } else {
                recordNew(key, value, depth);
                members.push_back({key, value});
            }
        }
        members.insert(members.end(), next, live.end());
        const json::Object merged =
            arena.keep(json::Object(members.begin() + begin, members.end()));
        members.erase(members.begin() + begin, members.end());
        return merged;
    }

private:
    void enter(std::string_view key, int depth) {
        if (depth == pluginDepth) {
            report.currentPlugin = key;
            report.currentParameter = {};
        } else if (depth == parameterDepth) {
            report.currentParameter = key;
        }
    }

    static bool isDeprecated(const json::Value& value, int depth) {
        return (depth == pluginDepth || depth == parameterDepth) && value.isNull();
    }

    static KeyLevel levelAt(int depth) {
        return depth < parameterDepth ? KeyLevel::plugin : KeyLevel::parameter;
    }

    json::Value mergeValues(std::string_view key, const json::Value& stripped,
                            const json::Value& live, int depth) {
        if (const auto object = stripped.object()) {
            return json::Value(mergeObjects(*object, json::asObject(live), depth + 1));
        }
        // Values are equal when their texts are, so 0 and -0 differ.
        const std::string liveText = json::compactText(live);
        if (json::compactText(stripped) == liveText) {
            report.recordDuplication(key, liveText);
            return live;
        }
        report.recordChange(key, levelAt(depth), stripped, liveText);
        return stripped;
    }

    void recordNew(std::string_view key, const json::Value& stripped, int depth) {
        const auto object = stripped.object();
        if (!object) return report.recordChange(key, levelAt(depth), stripped, "");
        for (const char* recorded : {"type", "defaultValue"}) {
            const json::Value* value = json::find(*object, recorded);
            if (value != nullptr) report.recordChange(recorded, levelAt(depth), *value, "");
        }
    }

    Arena& arena;
    CombineReport& report;
    std::vector<json::Member> members;  ///< of all objects that are being merged
};

}  // namespace

json::Object merge(json::Object stripped, json::Object live, Arena& arena, CombineReport& report) {
    return Merge(arena, report).mergeObjects(stripped, live, 0);
}

}  // namespace metagen

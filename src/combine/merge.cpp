#include "combine/merge.h"

#include <initializer_list>
#include <utility>

namespace metagen {

namespace {

/// What the keys of an object name, by the depth of the object that holds them.
constexpr int pluginDepth = 1;
constexpr int parameterDepth = 3;

class Merge {
public:
    explicit Merge(CombineReport& combineReport) : report(combineReport) {}

    void mergeObject(json::Object& stripped, json::Object& live, int depth) {
        for (auto member = stripped.begin(); member != stripped.end();) {
            // Stepped over first: the member may move into the live object.
            const auto here = member++;
            enter(here->first, depth);
            const auto place = live.lower_bound(here->first);
            const bool isLive = place != live.end() && place->first == here->first;
            if (isDeprecated(here->second, depth)) {
                if (isLive) remove(live, place);
            } else if (isLive) {
                mergeValue(here->first, here->second, place->second, depth);
            } else {
                recordNew(here->first, here->second, depth);
                live.insert(place, stripped.extract(here));
            }
        }
    }

private:
    void enter(const std::string& key, int depth) {
        if (depth == pluginDepth) {
            report.currentPlugin = key;
            report.currentParameter.clear();
        } else if (depth == parameterDepth) {
            report.currentParameter = key;
        }
    }

    static bool isDeprecated(const json::Value& value, int depth) {
        return (depth == pluginDepth || depth == parameterDepth) && value.is<json::Null>();
    }

    static KeyLevel levelAt(int depth) {
        return depth < parameterDepth ? KeyLevel::plugin : KeyLevel::parameter;
    }

    void remove(json::Object& live, json::Object::iterator member) {
        live.erase(member);
        report.recordDeprecation();
    }

    void mergeValue(const std::string& key, json::Value& stripped, json::Value& live, int depth) {
        if (stripped.is<json::Object>()) {
            mergeObject(json::asObject(stripped), json::asObject(live), depth + 1);
            return;
        }
        const std::string liveText = json::compactText(live);
        if (areEqual(stripped, live, liveText)) {
            report.recordDuplication(key, liveText);
        } else {
            report.recordChange(key, levelAt(depth), stripped, liveText);
            live = std::move(stripped);
        }
    }

    /// Values are equal when their texts are, so 0 and -0 differ.
    static bool areEqual(const json::Value& stripped, const json::Value& live,
                         const std::string& liveText) {
        const bool areTexts = stripped.is<std::string>() && live.is<std::string>();
        return areTexts ? json::asString(stripped) == json::asString(live)
                        : json::compactText(stripped) == liveText;
    }

    void recordNew(const std::string& key, const json::Value& stripped, int depth) {
        if (!stripped.is<json::Object>()) {
            report.recordChange(key, levelAt(depth), stripped, "");
            return;
        }
        for (const char* recorded : {"type", "defaultValue"}) {
            const json::Value* value = json::find(json::asObject(stripped), recorded);
            if (value != nullptr) report.recordChange(recorded, levelAt(depth), *value, "");
        }
    }

    CombineReport& report;
};

}  // namespace

void merge(json::Object stripped, json::Object& live, CombineReport& report) {
    Merge(report).mergeObject(stripped, live, 0);
}

}  // namespace metagen

// What holds for the merge of any two documents, tried on random ones.

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>

#include "combine/merge.h"

namespace metagen {
namespace {

/// Documents of few names and values. Null stands nowhere that it means a deprecation.
class DocumentGenerator {
public:
    explicit DocumentGenerator(unsigned seed) : engine(seed) {}

    json::Object object(int depth) {
        json::Object members;
        for (const char* name : {"plugins", "Params", "type", "defaultValue", "a.b", "A_b", ""}) {
            if (draw(2) == 0) members[name] = value(depth);
        }
        return members;
    }

private:
    unsigned draw(unsigned count) { return static_cast<unsigned>(engine()) % count; }

    json::Value value(int depth) {
        switch (draw(depth < 6 ? 10 : 6)) {
            case 0: return depth == 1 || depth == 3 ? json::Value(1.5) : json::Value();
            case 1: return json::Value(draw(2) == 0);
            case 2: return json::Value(draw(5) / 4.0);
            case 3: return json::Value("text");
            case 4: return json::Value(json::Array{json::Value(), json::Value(object(9))});
            case 5: return json::Value(json::Object());
            default: return json::Value(object(depth + 1));
        }
    }

    std::mt19937 engine;
};

std::size_t countLeaves(const json::Object& object) {
    std::size_t count = 0;
    for (const auto& member : object) {
        const bool isObject = member.second.is<json::Object>();
        count += isObject ? countLeaves(json::asObject(member.second)) : 1;
    }
    return count;
}

/// Whether the object has every leaf of the other at the same path.
bool hasLeavesOf(const json::Object& object, const json::Object& other) {
    for (const auto& [key, value] : other) {
        const json::Value* here = json::find(object, key);
        if (here == nullptr) return false;
        const bool equal = value.is<json::Object>() && here->is<json::Object>()
                               ? hasLeavesOf(json::asObject(*here), json::asObject(value))
                               : json::compactText(*here) == json::compactText(value);
        if (!equal) return false;
    }
    return true;
}

template <typename Check>
void forRandomDocuments(const Check& check) {
    for (unsigned seed = 0; seed < 1000 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        check(DocumentGenerator(seed).object(0), DocumentGenerator(seed + 1'000'000).object(0));
    }
}

TEST(MergeProperty, ADocumentOverItselfChangesNothingAndRecordsOnlyDuplications) {
    forRandomDocuments([](const json::Object& document, const json::Object& /*other*/) {
        json::Object live = document;
        CombineReport report;
        merge(document, live, report);
        EXPECT_EQ(json::compactText(json::Value(live)), json::compactText(json::Value(document)));
        EXPECT_EQ(report.duplications.size(), countLeaves(document));
        EXPECT_TRUE(report.changedPluginTypes.empty());
        EXPECT_TRUE(report.changedParameterTypes.empty());
        EXPECT_TRUE(report.overriddenDefaults.empty());
        EXPECT_TRUE(report.deprecations.empty());
    });
}

TEST(MergeProperty, TheStrippedLeavesWinAndASecondMergeFindsThemAll) {
    int merges = 0;
    forRandomDocuments([&merges](const json::Object& stripped, json::Object live) {
        CombineReport report;
        try {
            merge(stripped, live, report);
        } catch (const std::runtime_error&) {
            return;  // an object over a leaf
        }
        ++merges;
        EXPECT_TRUE(hasLeavesOf(live, stripped));
        CombineReport second;
        merge(stripped, live, second);
        EXPECT_EQ(second.duplications.size(), countLeaves(stripped));
        EXPECT_TRUE(second.changedPluginTypes.empty() && second.changedParameterTypes.empty());
        EXPECT_TRUE(second.overriddenDefaults.empty());
    });
    EXPECT_GT(merges, 50);
}

}  // namespace
}  // namespace metagen

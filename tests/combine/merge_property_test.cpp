// What holds for the merge of any two documents, tried on random ones.

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <string>

#include <picojson.h>

#include "combine/merge.h"
#include "json/document.h"

namespace metagen {
namespace {

/// Documents of few names and values, as trees of the JSON library: the code under test has its
/// own. Null stands nowhere that it means a deprecation.
class DocumentGenerator {
public:
    explicit DocumentGenerator(unsigned seed) : engine(seed) {}

    picojson::object object(int depth) {
        picojson::object members;
        for (const char* name : {"plugins", "Params", "type", "defaultValue", "a.b", "A_b", ""}) {
            if (draw(2) == 0) members[name] = value(depth);
        }
        return members;
    }

private:
    unsigned draw(unsigned count) { return static_cast<unsigned>(engine()) % count; }

    picojson::value value(int depth) {
        switch (draw(depth < 6 ? 10 : 6)) {
            case 0: return depth == 1 || depth == 3 ? picojson::value(1.5) : picojson::value();
            case 1: return picojson::value(draw(2) == 0);
            case 2: return picojson::value(draw(5) / 4.0);
            case 3: return picojson::value("text");
            case 4: return picojson::value(picojson::array{{}, picojson::value(object(9))});
            case 5: return picojson::value(picojson::object());
            default: return picojson::value(object(depth + 1));
        }
    }

    std::mt19937 engine;
};

std::string textOf(const picojson::object& object) { return picojson::value(object).serialize(); }

/// The merged document. What the report refers to goes with the documents.
picojson::object merged(const picojson::object& stripped, const picojson::object& live,
                        CombineReport& report) {
    const json::Document strippedDocument(textOf(stripped));
    const json::Document liveDocument(textOf(live));
    Arena arena;
    const json::Object document = merge(json::asObject(strippedDocument.root()),
                                        json::asObject(liveDocument.root()), arena, report);
    report.currentPlugin = report.currentParameter = {};
    picojson::value parsed;
    EXPECT_EQ(picojson::parse(parsed, json::compactText(json::Value(document))), "");
    return parsed.get<picojson::object>();
}

std::size_t countLeaves(const picojson::object& object) {
    std::size_t count = 0;
    for (const auto& [key, value] : object) {
        const bool isObject = value.is<picojson::object>();
        count += isObject ? countLeaves(value.get<picojson::object>()) : 1;
    }
    return count;
}

/// Whether the object has every leaf of the other at the same path.
bool hasLeavesOf(const picojson::object& object, const picojson::object& other) {
    for (const auto& [key, value] : other) {
        const auto here = object.find(key);
        if (here == object.end()) return false;
        const bool equal =
            value.is<picojson::object>() && here->second.is<picojson::object>()
                ? hasLeavesOf(here->second.get<picojson::object>(), value.get<picojson::object>())
                : here->second.serialize() == value.serialize();
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
    forRandomDocuments([](const picojson::object& document, const picojson::object& /*other*/) {
        CombineReport report;
        EXPECT_EQ(textOf(merged(document, document, report)), textOf(document));
        EXPECT_EQ(report.duplications.size(), countLeaves(document));
        EXPECT_TRUE(report.changedPluginTypes.empty());
        EXPECT_TRUE(report.changedParameterTypes.empty());
        EXPECT_TRUE(report.overriddenDefaults.empty());
        EXPECT_TRUE(report.deprecations.empty());
    });
}

TEST(MergeProperty, TheStrippedLeavesWinAndASecondMergeFindsThemAll) {
    int merges = 0;
    forRandomDocuments([&merges](const picojson::object& stripped, const picojson::object& live) {
        CombineReport first;
        picojson::object document;
        try {
            document = merged(stripped, live, first);
        } catch (const std::runtime_error&) {
            return;  // an object over a leaf
        }
        ++merges;
        EXPECT_TRUE(hasLeavesOf(document, stripped));
        CombineReport second;
        merged(stripped, document, second);
        EXPECT_EQ(second.duplications.size(), countLeaves(stripped));
        EXPECT_TRUE(second.changedPluginTypes.empty() && second.changedParameterTypes.empty());
        EXPECT_TRUE(second.overriddenDefaults.empty());
    });
    EXPECT_GT(merges, 50);
}

}  // namespace
}  // namespace metagen

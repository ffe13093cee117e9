// What holds for the report of any two documents, tried on random pairs.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <picojson.h>

#include "diff/diff.h"
#include "json/document.h"

namespace metagen {
namespace {

constexpr std::string_view onlyLeft = " is only present on left side";
constexpr std::string_view onlyRight = " is only present on right side";
constexpr std::string_view differ = " different values are ";
constexpr std::string_view conjunction = " and ";

/// Documents of few names and few values, so that two of them have much in common, as trees of the
/// JSON library: the code under test has its own.
class DocumentGenerator {
public:
    explicit DocumentGenerator(unsigned seed) : engine(seed) {}

    picojson::object object(int depth) {
        picojson::object members;
        for (const char* name : {"A", "B", "a", "a.b", "b_", "\xc3\xa9"}) {
            if (draw(2) == 0) members[name] = value(depth - 1);
        }
        return members;
    }

    /// A document with some members taken away, added or replaced.
    void change(picojson::object& members, int depth) {
        for (const char* name : {"A", "a", "b_", "c"}) {
            if (draw(4) != 0) continue;
            const auto member = members.find(name);
            if (member == members.end()) {
                members[name] = value(depth - 1);
            } else if (member->second.is<picojson::object>() && draw(4) != 0) {
                change(member->second.get<picojson::object>(), depth - 1);
            } else if (draw(2) == 0) {
                members.erase(member);
            } else {
                member->second = value(depth - 1);
            }
        }
    }

    int draw(int count) { return static_cast<int>(engine() % static_cast<unsigned>(count)); }

private:
    picojson::value value(int depth) {
        switch (draw(depth > 0 ? 9 : 6)) {
            case 0: return {};
            case 1: return picojson::value(draw(2) == 0);
            case 2: return picojson::value(draw(3) / 2.0);
            case 3: return picojson::value(draw(2) == 0 ? "" : "text");
            case 4: return picojson::value(picojson::object());
            case 5: return picojson::value(picojson::array());
            case 6: return picojson::value(picojson::array{value(depth - 1), value(depth - 1)});
            default: return picojson::value(object(depth));
        }
    }

    std::mt19937 engine;
};

std::string reportOf(const picojson::object& left, const picojson::object& right) {
    const json::Document leftDocument(picojson::value(left).serialize());
    const json::Document rightDocument(picojson::value(right).serialize());
    std::string report;
    diffObjects(*leftDocument.root().object(), *rightDocument.root().object(), report, "");
    return report;
}

std::vector<std::string> linesOf(const std::string& report) {
    std::vector<std::string> lines;
    for (std::size_t begin = 0, end = 0; begin < report.size(); begin = end + 1) {
        end = std::min(report.find('\n', begin), report.size());
        lines.push_back(report.substr(begin, end - begin));
    }
    return lines;
}

/// The line as the swapped sides give it. The documents hold no blank.
std::string swapped(const std::string& line) {
    const std::string path = line.substr(0, line.find(' '));
    if (line == path + std::string(onlyLeft)) return path + std::string(onlyRight);
    if (line == path + std::string(onlyRight)) return path + std::string(onlyLeft);
    const std::size_t values = path.size() + differ.size();
    const std::size_t middle = line.find(conjunction, values);
    return path + std::string(differ) + line.substr(middle + conjunction.size()) +
           std::string(conjunction) + line.substr(values, middle - values);
}

/// Every path at which the objects differ: looks up each name of both, with no regard to order.
void addPaths(const picojson::object& left, const picojson::object& right, const std::string& path,
              std::vector<std::string>& paths) {
    std::set<std::string> names;
    for (const auto& member : left) names.insert(member.first);
    for (const auto& member : right) names.insert(member.first);
    for (const std::string& name : names) {
        const bool inBoth = left.count(name) + right.count(name) == 2;
        const std::string memberPath = path + ":" + name;
        if (!inBoth) {
            paths.push_back(memberPath);
        } else if (left.at(name).is<picojson::object>() && right.at(name).is<picojson::object>()) {
            addPaths(left.at(name).get<picojson::object>(), right.at(name).get<picojson::object>(),
                     memberPath, paths);
        } else if (left.at(name) != right.at(name)) {
            paths.push_back(memberPath);
        }
    }
}

class DiffProperty : public testing::Test {
protected:
    /// Calls check with random pairs, half of which are two revisions of one document.
    template <typename Check>
    void forRandomPairs(const Check& check) {
        for (unsigned seed = 0; seed < 2000 && !HasFailure(); ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            DocumentGenerator generator(seed);
            const picojson::object left = generator.object(4);
            picojson::object right = left;
            if (seed % 2 == 0) {
                generator.change(right, 4);
            } else {
                right = generator.object(4);
            }
            check(left, right);
        }
    }
};

TEST_F(DiffProperty, TheReportIsEmptyExactlyForEqualDocuments) {
    int equalPairs = 0;
    forRandomPairs([&equalPairs](const picojson::object& left, const picojson::object& right) {
        EXPECT_EQ(reportOf(left, right).empty(), left == right);
        EXPECT_EQ(reportOf(left, left), "");
        equalPairs += left == right ? 1 : 0;
    });
    EXPECT_GT(equalPairs, 100);
}

TEST_F(DiffProperty, SwappedSidesSwapTheLines) {
    forRandomPairs([](const picojson::object& left, const picojson::object& right) {
        std::vector<std::string> lines = linesOf(reportOf(left, right));
        for (std::string& line : lines) line = swapped(line);
        EXPECT_EQ(linesOf(reportOf(right, left)), lines);
    });
}

TEST_F(DiffProperty, ThePathsAreThoseOfAnIndependentWalk) {
    forRandomPairs([](const picojson::object& left, const picojson::object& right) {
        std::vector<std::string> expected;
        addPaths(left, right, "", expected);
        std::vector<std::string> reported;
        for (const std::string& line : linesOf(reportOf(left, right))) {
            reported.push_back(line.substr(0, line.find(' ')));
        }
        EXPECT_EQ(reported, expected);
    });
}

}  // namespace
}  // namespace metagen

#include "diff/diff.h"

#include <string_view>
#include <utility>

namespace metagen {

namespace {

class ObjectDifference {
public:
    ObjectDifference(std::string& report, std::string start)
        : out(report), path(std::move(start)) {}

    /// Walks both objects side by side, which have their members in the same order.
    void compare(json::Object left, json::Object right) {
        auto leftMember = left.begin();
        auto rightMember = right.begin();
        while (leftMember != left.end() || rightMember != right.end()) {
            const bool rightDone = rightMember == right.end();
            const bool leftDone = leftMember == left.end();
            if (rightDone || (!leftDone && leftMember->key < rightMember->key)) {
                reportLonely((leftMember++)->key, " is only present on left side\n");
            } else if (leftDone || rightMember->key < leftMember->key) {
                reportLonely((rightMember++)->key, " is only present on right side\n");
            } else {
                compareMembers(*leftMember++, (rightMember++)->value);
            }
        }
    }

private:
    void reportLonely(std::string_view name, std::string_view text) {
        appendPath(name);
        out += text;
    }

    void compareMembers(const json::Member& left, const json::Value& right) {
        if (left.value.isObject() && right.isObject()) {
            const std::size_t length = path.size();
            path.append(1, ':').append(left.key);
            compare(*left.value.object(), *right.object());
            path.resize(length);
        } else if (left.value != right) {
            appendPath(left.key);
            out += " different values are ";
            json::appendCompactText(out, left.value);
            out += " and ";
            json::appendCompactText(out, right);
            out += '\n';
        }
    }

    void appendPath(std::string_view name) { out.append(path).append(1, ':').append(name); }

    std::string& out;
    std::string path;  ///< of the objects at hand; the names are not escaped
};

}  // namespace

void diffObjects(json::Object left, json::Object right, std::string& out, const std::string& path) {
    ObjectDifference(out, path).compare(left, right);
}

}  // namespace metagen

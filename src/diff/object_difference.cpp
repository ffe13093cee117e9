#include "diff/object_difference.h"

#include <string_view>
#include <utility>

namespace metagen {

namespace {

using Member = json::Object::value_type;

class ObjectDifference {
public:
    ObjectDifference(std::string& report, std::string start)
        : out(report), path(std::move(start)) {}

    /// Walks both objects side by side, which have their members in the same order.
    void compare(const json::Object& left, const json::Object& right) {
        auto leftMember = left.begin();
        auto rightMember = right.begin();
        while (leftMember != left.end() || rightMember != right.end()) {
            const bool rightDone = rightMember == right.end();
            const bool leftDone = leftMember == left.end();
            if (rightDone || (!leftDone && leftMember->first < rightMember->first)) {
                reportLonely(*leftMember++, " is only present on left side\n");
            } else if (leftDone || rightMember->first < leftMember->first) {
                reportLonely(*rightMember++, " is only present on right side\n");
            } else {
                compareMembers(*leftMember++, (rightMember++)->second);
            }
        }
    }

private:
    void reportLonely(const Member& member, std::string_view text) {
        appendPath(member.first);
        out += text;
    }

    void compareMembers(const Member& left, const json::Value& right) {
        const json::Value& value = left.second;
        if (value.is<json::Object>() && right.is<json::Object>()) {
            const std::size_t length = path.size();
            path.append(1, ':').append(left.first);
            compare(json::asObject(value), json::asObject(right));
            path.resize(length);
        } else if (value != right) {
            appendPath(left.first);
            out += " different values are ";
            json::appendCompactText(out, value);
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

void diffObjects(const json::Object& left, const json::Object& right, std::string& out,
                 const std::string& path) {
    ObjectDifference(out, path).compare(left, right);
}

}  // namespace metagen

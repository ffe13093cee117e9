// A JSON value that knows its place in the catalogue, so that whatever is wrong with it can be
// reported with the place. The places are put together only then.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "json/document.h"

namespace metagen::replay {

/// A catalogue that isn't one. The text is "<place>: <reason>".
class CatalogueError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A value that lies inside another, or the document itself. It refers to its parent and to its
/// key, which must outlive it.
class CatalogueNode {
public:
    explicit CatalogueNode(const json::Value& document) : value(document) {}
    CatalogueNode(const CatalogueNode& owner, std::string_view memberName,
                  const json::Value& member)
        : value(member), parent(&owner), name(memberName) {}
    CatalogueNode(const CatalogueNode& owner, std::size_t elementIndex, const json::Value& element)
        : value(element), parent(&owner), index(elementIndex) {}

    /// The names and indices on the way from the document, each after a "/"; "/" by itself is the
    /// document.
    std::string place() const;

    [[noreturn]] void fail(const std::string& reason) const;

    bool isNull() const { return value.isNull(); }

    // The value as one kind; any other kind fails.
    json::Object object() const;
    json::Array array() const;
    std::string text() const;  ///< fails on a text with a NUL in it, too
    bool boolean() const;
    double number() const;  ///< of the texts, "inf", "-inf", "nan" and "-nan" count as numbers
    float single() const;   ///< fails beyond the range of a float
    std::int64_t integer(std::int64_t lowest, std::int64_t highest) const;
    std::int32_t integer32() const;
    std::int64_t wideInteger()
        const;  ///< an integer below 2^53, or a text like "0xFFFF000000000005"

    /// Calls visit(CatalogueNode) for every member or element.
    template <typename Visitor>
    void forEachMember(Visitor visit) const {
        for (const auto& [key, member] : object()) visit(CatalogueNode(*this, key, member));
    }
    template <typename Visitor>
    void forEachElement(Visitor visit) const {
        std::size_t position = 0;
        for (const json::Value& element : array()) visit(CatalogueNode(*this, position++, element));
    }

    const json::Value& value;
    const CatalogueNode* parent = nullptr;
    std::string_view name;  ///< of a member
    std::size_t index = 0;  ///< of an element
};

/// The members of an object by the position of their names in `names`, null for those that it
/// lacks. A member of any other name fails, except "comment", which may stand everywhere.
template <std::size_t count>
std::array<const json::Value*, count> membersOf(const CatalogueNode& node,
                                                const std::array<std::string_view, count>& names) {
    std::array<const json::Value*, count> members = {};
    node.forEachMember([&](const CatalogueNode& member) {
        for (std::size_t position = 0; position < count; ++position) {
            if (names[position] == member.name) {
                members[position] = &member.value;
                return;
            }
        }
        if (member.name != "comment") member.fail("unknown member");
    });
    return members;
}

}  // namespace metagen::replay

// What the checks look at: the stripped document, the SDK's answers, and what combine makes of the
// two.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "json/document.h"
#include "json/value.h"
#include "support/memory.h"

namespace metagen::lint {

/// The sections of a plugin.
inline constexpr std::string_view params = "params";
inline constexpr std::string_view userData = "userData";

/// The member that an object lacks is null.
const json::Member* findMember(json::Object object, std::string_view key);

/// The members of a value that is an object; of any other none.
inline json::Object membersOf(const json::Value& value) {
    return value.object().value_or(json::Object());
}
inline json::Object membersOf(const json::Value* value) {
    return value == nullptr ? json::Object() : membersOf(*value);
}

/// The value of a member that is an object, as membersOf has it.
json::Object section(json::Object object, std::string_view key);

/// Whether JSON has escapes for bytes of the name; combine writes it without.
bool needsEscape(std::string_view name);

/// Whether some of the keys are one in the combined order.
bool hasFoldedKeys(json::Object object);

class Subject {
public:
    /// Borrows both documents, whose values are objects. The base document has the shape of one.
    Subject(const json::Document& strippedDocument, const json::Document& baseDocument);

    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;

    const json::Document& document;
    const json::Object stripped;
    const json::Object base;

    /// The merge of the two; of an object where the SDK has a single value the merge knows nothing.
    json::Object merged;

    /// The members of the stripped document that the merge had to do without, and whether one is of
    /// them.
    [[nodiscard]] const std::vector<const json::Member*>& unmerged() const { return pruned; }
    [[nodiscard]] bool isUnmerged(const json::Member& member) const;

    /// The combined document as the generators read it; the merge when it doesn't parse.
    json::Object combined;
    bool isReadable = true;

    /// The combined document as combine writes it.
    [[nodiscard]] std::string combinedText() const;

    /// Where the key of the member stands that the path leads to, or else the nearest parameter or
    /// plugin above it that the document names, or else line 1.
    [[nodiscard]] std::uint32_t keyPlace(std::initializer_list<std::string_view> path) const;

    /// The same with the place of the member's value.
    [[nodiscard]] std::uint32_t valuePlace(std::initializer_list<std::string_view> path) const;

private:
    void mergeDocuments();

    /// The member that the path leads to, and whether it is that one or one above it.
    struct Found {
        const json::Member* member = nullptr;
        bool isWhole = false;
    };
    [[nodiscard]] Found find(std::initializer_list<std::string_view> path) const;

    Arena arena;
    std::vector<const json::Member*> pruned;  ///< by address
    std::optional<json::Document> written;    ///< where names make another document of it
};

}  // namespace metagen::lint

// What the checks find in a stripped document, and where.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "lint/rule.h"

namespace metagen::lint {

/// A further place of a finding.
struct Note {
    std::uint32_t offset;
    std::string message;
};

/// Offsets are in bytes of the document.
struct Finding {
    const Rule* rule;
    std::uint32_t offset;
    std::string message;
    std::vector<Note> notes = {};
};

/// Collects what the checks find.
class Findings {
public:
    /// The reference holds until the next one is added.
    Finding& add(const Rule& rule, std::uint32_t offset, std::string message) {
        if (rule.severity == Severity::error) ++errors;
        return found.emplace_back(Finding{&rule, offset, std::move(message)});
    }

    /// How many there are that are errors.
    [[nodiscard]] std::size_t errorCount() const { return errors; }

    /// What was found, in the order of the document; what was found twice, once.
    std::vector<Finding> take();

private:
    std::vector<Finding> found;
    std::size_t errors = 0;
};

}  // namespace metagen::lint

// The findings as their readers want them: people and editors, programs, hosted repositories.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "json/document.h"
#include "lint/finding.h"

namespace metagen::lint {

struct PlacedNote {
    json::Place place;
    std::string_view message;
};

/// Borrows from the finding.
struct PlacedFinding {
    const Rule* rule;
    json::Place place;
    std::string_view message;
    std::vector<PlacedNote> notes;
};

/// The places of findings of the document.
std::vector<PlacedFinding> placed(const json::Document& document,
                                  const std::vector<Finding>& findings);

enum class Format : std::uint8_t { text, json, sarif, github };

struct ReportOptions {
    Format format = Format::text;
    bool hasColors = false;  ///< counts for text only
};

/// The findings of the document at the path, ended by a line feed unless there is nothing to say.
std::string report(std::string_view path, const std::vector<PlacedFinding>& findings,
                   const ReportOptions& options);

/// One per format.
std::string textReport(std::string_view path, const std::vector<PlacedFinding>& findings,
                       bool hasColors);
std::string jsonReport(std::string_view path, const std::vector<PlacedFinding>& findings);
std::string sarifReport(std::string_view path, const std::vector<PlacedFinding>& findings);
std::string githubReport(std::string_view path, const std::vector<PlacedFinding>& findings);

}  // namespace metagen::lint

#include "lint/report.h"

#include <algorithm>
#include <map>

#include "lint/wording.h"
#include "support/numbers.h"

namespace metagen::lint {

namespace {

/// Escape sequences of terminals.
struct Colors {
    std::string_view bold;
    std::string_view severity;
    std::string_view end;
};

Colors colorsOf(Severity severity, bool hasColors) {
    if (!hasColors) return {};
    constexpr std::string_view cyan = "\x1b[36;1m";
    constexpr std::string_view magenta = "\x1b[35;1m";
    constexpr std::string_view red = "\x1b[31;1m";
    const std::string_view color = severity == Severity::error     ? red
                                   : severity == Severity::warning ? magenta
                                                                   : cyan;
    return {"\x1b[1m", color, "\x1b[0m"};
}

void appendNumber(std::string& out, std::size_t number) {
    appendInteger(out, static_cast<std::int64_t>(number));
}

/// Appends the beginning of a line, as compilers write it and editors read it.
void appendPlace(std::string& out, std::string_view path, const json::Place& place,
                 Severity severity, bool hasColors) {
    const Colors colors = colorsOf(severity, hasColors);
    out.append(colors.bold).append(path) += ':';
    appendNumber(out, place.line);
    out += ':';
    appendNumber(out, place.column);
    out.append(":").append(colors.end).append(" ");
    out.append(colors.severity).append(name(severity)).append(":").append(colors.end).append(" ");
}

/// As the commands of workflows in hosted repositories are escaped.
std::string escapedForGithub(std::string_view text, bool isProperty) {
    std::string out;
    for (const char byte : text) {
        switch (byte) {
            case '%': out += "%25"; break;
            case '\r': out += "%0D"; break;
            case '\n': out += "%0A"; break;
            case ':': out += isProperty ? "%3A" : ":"; break;
            case ',': out += isProperty ? "%2C" : ","; break;
            default: out += byte;
        }
    }
    return out;
}

}  // namespace

std::vector<PlacedFinding> placed(const json::Document& document,
                                  const std::vector<Finding>& findings) {
    std::map<std::uint32_t, json::Place> places;
    for (const Finding& finding : findings) {
        places[finding.offset];
        for (const Note& note : finding.notes) places[note.offset];
    }
    json::PlaceFinder finder(document);
    for (auto& [offset, place] : places) place = finder.placeAt(offset);

    std::vector<PlacedFinding> result;
    result.reserve(findings.size());
    for (const Finding& finding : findings) {
        PlacedFinding& one = result.emplace_back(
            PlacedFinding{finding.rule, places[finding.offset], finding.message, {}});
        for (const Note& note : finding.notes) {
            one.notes.push_back({places[note.offset], note.message});
        }
    }
    return result;
}

std::string report(std::string_view path, const std::vector<PlacedFinding>& findings,
                   const ReportOptions& options) {
    switch (options.format) {
        case Format::json: return jsonReport(path, findings);
        case Format::sarif: return sarifReport(path, findings);
        case Format::github: return githubReport(path, findings);
        case Format::text: break;
    }
    return textReport(path, findings, options.hasColors);
}

std::string textReport(std::string_view path, const std::vector<PlacedFinding>& findings,
                       bool hasColors) {
    std::string out;
    for (const PlacedFinding& finding : findings) {
        appendPlace(out, path, finding.place, finding.rule->severity, hasColors);
        out.append(finding.message).append(" [").append(finding.rule->name).append("]\n");
        for (const PlacedNote& note : finding.notes) {
            appendPlace(out, path, note.place, Severity::note, hasColors);
            out.append(note.message).append("\n");
        }
    }
    return out;
}

std::string githubReport(std::string_view path, const std::vector<PlacedFinding>& findings) {
    std::string out;
    for (const PlacedFinding& finding : findings) {
        const bool isNote = finding.rule->severity == Severity::note;
        out.append("::").append(isNote ? "notice" : name(finding.rule->severity));
        out.append(" file=").append(escapedForGithub(path, true)).append(",line=");
        appendNumber(out, finding.place.line);
        out += ",col=";
        appendNumber(out, finding.place.column);
        out.append(",title=").append(finding.rule->name).append("::");
        out += escapedForGithub(finding.message, false);
        for (const PlacedNote& note : finding.notes) {
            out += "%0Aline ";
            appendNumber(out, note.place.line);
            out.append(": ").append(escapedForGithub(note.message, false));
        }
        out += '\n';
    }
    return out;
}

}  // namespace metagen::lint

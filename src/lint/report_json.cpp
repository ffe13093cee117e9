// The outputs for programs. Both are written by hand, since their numbers and texts are simple and
// their lines are to be read, too.
#include <algorithm>
#include <filesystem>

#include "lint/report.h"
#include "lint/wording.h"
#include "support/escapes.h"
#include "support/numbers.h"

namespace metagen::lint {

namespace {

/// Appends the text as a JSON string, valid whatever bytes it has.
void appendString(std::string& out, std::string_view text) {
    out += '"';
    appendEscaped(out, printable(text));
    out += '"';
}

void appendMember(std::string& out, std::string_view key, std::string_view text) {
    appendString(out, key);
    out += ": ";
    appendString(out, text);
}

void appendMember(std::string& out, std::string_view key, std::size_t number) {
    appendString(out, key);
    out += ": ";
    appendInteger(out, static_cast<std::int64_t>(number));
}

void appendPlace(std::string& out, const json::Place& place, std::string_view lineKey,
                 std::string_view columnKey) {
    appendMember(out, lineKey, place.line);
    out += ", ";
    appendMember(out, columnKey, place.column);
}

/// The path as a reference to a file, relative where the path is.
std::string uriOf(std::string_view path) {
    constexpr std::string_view plain =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    const bool hasDrive = path.size() > 2 && path[1] == ':';
    std::string uri = hasDrive ? "file:///" : path.starts_with('/') ? "file://" : "";
    if (hasDrive) {
        uri.append(path.substr(0, 2));
        path.remove_prefix(2);
    }
    constexpr char separator = static_cast<char>(std::filesystem::path::preferred_separator);
    for (const char byte : path) {
        const char letter = byte == separator ? '/' : byte;
        if (plain.find(letter) != std::string_view::npos) {
            uri += letter;
            continue;
        }
        const auto code = static_cast<unsigned char>(letter);
        uri += '%';
        uri += digits[code >> 4U];
        uri += digits[code & 0xFU];
    }
    return uri;
}

void appendLocation(std::string& out, const std::string& uri, const json::Place& place,
                    std::string_view message) {
    out += "{";
    if (!message.empty()) {
        out += "\"message\": {";
        appendMember(out, "text", message);
        out += "}, ";
    }
    out += "\"physicalLocation\": {\"artifactLocation\": {";
    appendMember(out, "uri", uri);
    out += "}, \"region\": {";
    appendPlace(out, place, "startLine", "startColumn");
    out += "}}}";
}

void appendRules(std::string& out) {
    const char* separator = "";
    for (const Rule* rule : rule::all) {
        out.append(separator).append("\n        {");
        appendMember(out, "id", rule->name);
        out += ", \"shortDescription\": {";
        appendMember(out, "text", rule->sentence);
        out += "}, \"defaultConfiguration\": {";
        appendMember(out, "level", name(rule->severity));
        out += "}}";
        separator = ",";
    }
}

void appendResult(std::string& out, const std::string& uri, const PlacedFinding& finding) {
    const auto index = std::ranges::find(rule::all, finding.rule) - rule::all.begin();
    out += "\n      {";
    appendMember(out, "ruleId", finding.rule->name);
    out += ", ";
    appendMember(out, "ruleIndex", static_cast<std::size_t>(index));
    out += ", ";
    appendMember(out, "level", name(finding.rule->severity));
    out += ", \"message\": {";
    appendMember(out, "text", finding.message);
    out += "}, \"locations\": [";
    appendLocation(out, uri, finding.place, "");
    out += "]";
    const char* separator = ", \"relatedLocations\": [";
    for (const PlacedNote& note : finding.notes) {
        out += separator;
        appendLocation(out, uri, note.place, note.message);
        separator = ", ";
    }
    out += finding.notes.empty() ? "}" : "]}";
}

void appendFinding(std::string& out, const PlacedFinding& finding) {
    appendPlace(out, finding.place, "line", "column");
    out += ", ";
    appendMember(out, "severity", name(finding.rule->severity));
    out += ", ";
    appendMember(out, "rule", finding.rule->name);
    out += ", ";
    appendMember(out, "message", finding.message);
    out += ", \"notes\": [";
    const char* separator = "";
    for (const PlacedNote& note : finding.notes) {
        out.append(separator).append("{");
        appendPlace(out, note.place, "line", "column");
        out += ", ";
        appendMember(out, "message", note.message);
        out += "}";
        separator = ", ";
    }
    out += "]";
}

}  // namespace

std::string jsonReport(std::string_view path, const std::vector<PlacedFinding>& findings) {
    std::string out = "{";
    appendMember(out, "path", path);
    out += ", \"findings\": [";
    const char* separator = "";
    for (const PlacedFinding& finding : findings) {
        out.append(separator).append("\n  {");
        appendFinding(out, finding);
        out += "}";
        separator = ",";
    }
    return out += findings.empty() ? "]}\n" : "\n]}\n";
}

std::string sarifReport(std::string_view path, const std::vector<PlacedFinding>& findings) {
    std::string out =
        "{\n  \"$schema\": \"https://json.schemastore.org/sarif-2.1.0.json\",\n"
        "  \"version\": \"2.1.0\",\n"
        "  \"runs\": [{\n    \"tool\": {\"driver\": {\"name\": \"metagen-lint\", ";
    appendMember(out, "version", METAGEN_VERSION);
    out += ", \"rules\": [";
    appendRules(out);
    out += "\n    ]}},\n    \"columnKind\": \"unicodeCodePoints\",\n    \"results\": [";
    const std::string uri = uriOf(path);
    const char* separator = "";
    for (const PlacedFinding& finding : findings) {
        out += separator;
        appendResult(out, uri, finding);
        separator = ",";
    }
    return out += findings.empty() ? "]\n  }]\n}\n" : "\n    ]\n  }]\n}\n";
}

}  // namespace metagen::lint

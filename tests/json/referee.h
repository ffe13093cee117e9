// Compares a document with the tree that the JSON library makes of the same bytes.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>

#include <picojson.h>

#include "json/document.h"

namespace metagen::json {

/// Whether both hold the same, member by member.
inline bool isSame(const Value& value, const picojson::value& library) {
    if (const auto boolean = value.boolean()) {
        return library.is<bool>() && library.get<bool>() == *boolean;
    }
    if (const auto number = value.number()) {
        return library.is<double>() && library.get<double>() == *number;
    }
    if (const auto text = value.text()) {
        return library.is<std::string>() && library.get<std::string>() == *text;
    }
    if (const auto elements = value.array()) {
        if (!library.is<picojson::array>()) return false;
        return std::ranges::equal(*elements, library.get<picojson::array>(), isSame);
    }
    if (const auto members = value.object()) {
        if (!library.is<picojson::object>()) return false;
        return std::ranges::equal(*members, library.get<picojson::object>(),
                                  [](const Member& member, const auto& libraryMember) {
                                      return member.key == libraryMember.first &&
                                             isSame(member.value, libraryMember.second);
                                  });
    }
    return library.is<picojson::null>();
}

/// What the two disagree on; empty when on nothing. The library leaves the nesting of objects open
/// and throws a number beyond a double, so a text that nests deeper than a document may is passed
/// over, and of such a number only the refusal is compared.
inline std::string disagreement(const std::string& text) try {
    if (static_cast<std::size_t>(std::ranges::count(text, '{')) > maximumDepth) return "";
    const Document document(text);
    picojson::value library;
    std::string error;
    picojson::parse(library, text.data(), text.data() + text.size(), &error);
    if (document.isValid() != error.empty()) return "acceptance";
    if (!document.isValid()) {
        const std::string line = "syntax error at line " + std::to_string(document.errorLine());
        return error.starts_with(line + " near") ? "" : "the line of the error";
    }
    if (!isSame(document.root(), library)) return "structure";
    const std::string written = compactText(document.root());
    if (written != library.serialize()) return "compact text";
    if (document.root() != Document(written).root()) return "equality";
    return "";
} catch (const std::overflow_error&) {
    return Document(text).isValid() ? "a number beyond a double" : "";
}

}  // namespace metagen::json

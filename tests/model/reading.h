// Helpers of the model's tests: documents from literals, entries as one line of text each, the
// messages of errors.
#pragma once

#include <string>
#include <string_view>

#include "model/combined_model.h"
#include "support/json.h"
#include "support/number_text.h"

namespace metagen {

inline json::Value documentOf(std::string_view text) { return json::parse(text).value(); }

/// The message of the exception that the call throws, which is exactly an Exception.
template <typename Exception, typename Call>
std::string messageOf(const Call& call) {
    try {
        call();
    } catch (const Exception& exception) {
        return typeid(exception) == typeid(Exception) ? exception.what() : "another exception";
    }
    return "nothing thrown";
}

/// The texts of the JSON library's errors.
inline const std::string notAnObject =
    "\"type mismatch! call is<type>() before get<type>()\" && is<object>()";
inline const std::string notAString =
    "\"type mismatch! call is<type>() before get<type>()\" && is<std::string>()";

struct DefaultText {
    std::string operator()(std::monostate) const { return "none"; }
    std::string operator()(std::int32_t number) const { return "int " + std::to_string(number); }
    std::string operator()(float number) const { return "float " + formatFloatLiteral(number); }
    std::string operator()(double number) const { return "double " + std::to_string(number); }
    std::string operator()(bool flag) const { return flag ? "bool true" : "bool false"; }
    std::string operator()(const Color& color) const { return "color " + formatFloatList(color); }
    std::string operator()(const AColor& color) const { return "acolor " + formatFloatList(color); }
    std::string operator()(const std::string* text) const { return "text '" + *text + "'"; }
};

inline std::string textOf(const std::string* text) { return text == nullptr ? "-" : *text; }

/// Every field of the entry.
inline std::string textOf(const ParamEntry& entry) {
    std::string text = "state " + std::to_string(entry.handlerState) + ", flags " +
                       std::to_string(entry.flags) + ", file " + std::to_string(entry.fileMode) +
                       ", list " + std::to_string(entry.isList) + ", type " +
                       textOf(entry.typeName) + ", default " +
                       std::visit(DefaultText(), entry.defaultValue) + ", scale " +
                       std::to_string(entry.scaleUnit) + " " + std::to_string(entry.scalePower) +
                       (entry.scaleInverse ? " inverse" : "");
    for (const ScaleCondition& condition : entry.conditions) {
        text += ", if " + std::to_string(condition.op) + " '" + condition.ref + "' " +
                json::compactText(condition.value);
    }
    return text;
}

}  // namespace metagen

#include "lint/entry_checks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

#include "lint/wording.h"
#include "metadata/default_value_parser.h"
#include "model/handlers.h"
#include "sdk/parameter_type.h"
#include "support/numbers.h"

namespace metagen::lint {

namespace {

/// What may follow the last number of a value in parentheses.
constexpr std::string_view ends = ") \t\r\n\v\f";

bool isWhole(std::string_view rest) { return std::ranges::all_of(rest, isBlank); }

bool isWholeField(std::string_view rest) {
    return rest.find_first_not_of(ends) == std::string_view::npos;
}

struct Form {
    std::string_view type;
    std::string_view text;
    bool isElement;  ///< of lists that keep values
};

constexpr std::array forms = {
    Form{"vector", "Vector(0, 0, 1)", true}, Form{"color", "Color(1, 0.5, 0)", true},
    Form{"acolor", "AColor(1, 0.5, 0, 1)", true},
    Form{"matrix", "Matrix(Vector(1, 0, 0), Vector(0, 1, 0), Vector(0, 0, 1))", false},
    Form{"transform",
         "Transform(Matrix(Vector(1, 0, 0), Vector(0, 1, 0), Vector(0, 0, 1)), Vector(0, 0, 0))",
         false}};

/// `, such as "Vector(0, 0, 1)"`: how a value of the parameter's type may be written.
std::string suchAs(const MetaParameter& parameter) {
    const auto form = std::ranges::find_if(forms, [&parameter](const Form& candidate) {
        return parameter.typeName.starts_with(candidate.type);
    });
    const bool isList = isListCode(parameter.code);
    if (isList && form != forms.end() && !form->isElement) return "";
    std::string text(form == forms.end() ? "..." : form->text);
    if (isList) text = "List(" + text + ")";
    return ", such as \"" + text + '"';
}

class DefaultCheck {
public:
    DefaultCheck(const MetaParameter& read, const DefaultRecord& itsRecord, std::uint32_t place,
                 Findings& collected)
        : parameter(read),
          record(itsRecord),
          text(*read.defaultText),
          offset(place),
          findings(collected) {}

    void run() {
        if (std::holds_alternative<std::int32_t>(record)) {
            if (!isWhole(restAfterInteger(text))) reportPartial(text, "an integer");
        } else if (const auto* number = std::get_if<float>(&record)) {
            if (!isWhole(restAfterDouble(text))) reportPartial(text, "a number");
            checkLiterals({number, 1});
        } else if (isListCode(parameter.code)) {
            checkList();
        } else if (const auto* floats = std::get_if<FloatArray>(&record)) {
            checkCompound(*floats);
        }
    }

private:
    void checkCompound(const FloatArray& floats) {
        if (floats.values.empty()) {
            // genh reads one number as a grey.
            const bool isGrey = parameter.name.ends_with(handler_kind::color.value) &&
                                isWhole(restAfterDouble(text));
            if (!isGrey) reportRefused();
            return;
        }
        checkFields(text, floats.values.size());
        checkLiterals(floats.values);
    }

    /// The numbers of a text with parentheses: what no "(" follows.
    void checkFields(std::string_view value, std::size_t wanted) {
        std::size_t count = 0;
        for (std::string_view rest = value; !rest.empty();) {
            const std::size_t end = std::min(rest.find_first_of("(,"), rest.size());
            const std::string_view field = rest.substr(0, end);
            const bool isWord = end < rest.size() && rest[end] == '(';
            if (!isWord && count++ < wanted && !isWholeField(restAfterDouble(field))) {
                return reportPartial(field, "a number");
            }
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
        if (count > wanted) {
            add(rule::partialNumber, inQuotes(value) + " has " + std::to_string(count) +
                                         " numbers, of which only the first " +
                                         std::to_string(wanted) + " are read");
        }
    }

    void checkList() {
        const auto* integers = std::get_if<IntegerArray>(&record);
        const auto* floats = std::get_if<FloatArray>(&record);
        if (integers == nullptr && floats == nullptr) {
            const bool isOfTexts = parameter.code == type_code::list ||
                                   parameter.code == type_code::listOffset + type_code::string ||
                                   parameter.code == type_code::listOffset + type_code::texture;
            if (!isOfTexts && (!isListText(text) || ListTokenizer(text).first())) reportRefused();
            return;
        }
        std::size_t count = 0;
        ListTokenizer counter(text);
        while (counter.next()) ++count;
        ListTokenizer tokenizer(text);
        while (const auto element = tokenizer.next()) {
            if (integers != nullptr) {
                if (!isWhole(restAfterInteger(*element))) reportPartial(*element, "an integer");
            } else if (floats->values.size() == count) {
                if (!isWhole(restAfterDouble(*element))) reportPartial(*element, "a number");
            } else {
                checkFields(*element, floats->values.size() / count);
            }
        }
        if (floats != nullptr) checkLiterals(floats->values);
        if (integers != nullptr) checkIntegers(integers->values);
    }

    void checkLiterals(std::span<const float> numbers) {
        const auto bad = std::ranges::find_if_not(numbers, isGoodLiteral);
        if (bad == numbers.end()) return;
        std::string literal;
        appendFloatLiteral(literal, *bad);
        add(rule::brokenLiteral,
            inQuotes(text) + " becomes the literal " + literal + ", which no compiler takes");
    }

    /// Value arrays hold integers as the nearest floats.
    void checkIntegers(std::span<const std::int32_t> numbers) {
        const auto isGood = [](std::int32_t number) {
            return toInt64(static_cast<double>(static_cast<float>(number))) <=
                   std::numeric_limits<std::int32_t>::max();
        };
        if (std::ranges::all_of(numbers, isGood)) return;
        add(rule::brokenLiteral,
            inQuotes(text) + " becomes the literal 2147483648, which is no int");
    }

    void reportPartial(std::string_view value, std::string_view wanted) {
        add(rule::partialNumber, (inQuotes(value) + " is not ").append(wanted) +
                                     " as a whole; it is read as " + readAs(value, wanted));
    }

    static std::string readAs(std::string_view value, std::string_view wanted) {
        std::string read;
        if (wanted == "an integer") {
            appendInteger(read, lowBitsToInt32(readIntegerPrefix(value)));
        } else {
            appendGeneral(read, readDoublePrefix(value));
        }
        return read;
    }

    void reportRefused() {
        std::string type = isListCode(parameter.code) ? "list of " : "";
        type += parameter.typeName;
        add(rule::refusedDefault, inQuotes(text) + " is no " + type + " that genm can read" +
                                      suchAs(parameter) + ", so the host gets no default");
    }

    void add(const Rule& rule, std::string message) {
        findings.add(rule, offset, std::move(message));
    }

    const MetaParameter& parameter;
    const DefaultRecord& record;
    std::string_view text;
    std::uint32_t offset;
    Findings& findings;
};

}  // namespace

bool isGoodLiteral(float number) {
    std::string literal;
    appendFloatLiteral(literal, number);
    return std::isfinite(number) && literal.find_first_of(".e") != std::string::npos;
}

void checkDefault(const MetaParameter& parameter, const DefaultRecord& record, std::uint32_t offset,
                  Findings& findings) {
    DefaultCheck(parameter, record, offset, findings).run();
}

}  // namespace metagen::lint

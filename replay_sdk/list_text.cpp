#include "replay_sdk/list_text.h"

#include <charconv>

#include "support/numbers.h"

namespace metagen::replay {

namespace {

constexpr std::string_view separator = ", ";

/// The parts between the separators, one at least. A text that has separators inside is cut at
/// them too, which the joined text doesn't show.
std::vector<std::string_view> split(std::string_view inside) {
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = inside.find(separator);
        parts.push_back(inside.substr(0, end));
        if (end == std::string_view::npos) return parts;
        inside.remove_prefix(end + separator.size());
    }
}

/// The numbers of the text in order; words and punctuation between them are passed over.
template <typename Number>
std::vector<Number> numbersIn(std::string_view text) {
    constexpr std::string_view punctuation = "(), ";
    std::vector<Number> numbers;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find_first_of(punctuation));
        Number number = 0;
        const char* last = word.data() + word.size();
        const auto [end, error] = std::from_chars(word.data(), last, number);
        if (!word.empty() && error == std::errc() && end == last) numbers.push_back(number);
        text.remove_prefix(std::min(word.size() + 1, text.size()));
    }
    return numbers;
}

void appendNumbers(std::string& out, std::string_view opening, const float* numbers,
                   std::size_t count = 3) {
    out += opening;
    for (std::size_t index = 0; index < count; ++index) {
        if (index > 0) out += separator;
        appendGeneral(out, static_cast<double>(numbers[index]));
    }
    out += ')';
}

void appendElement(std::string& out, const ParameterType& type, const float* numbers) {
    if (type.code == type_code::transform) {
        appendNumbers(out, "Transform(Matrix(Vector(", numbers);
        appendNumbers(out, ", Vector(", numbers + 3);
        appendNumbers(out, ", Vector(", numbers + 6);
        appendNumbers(out, "), Vector(", numbers + 9);
        out += ')';
    } else if (type.shape == ValueShape::floats) {
        appendNumbers(out, std::string(type.word) + '(', numbers, type.components);
    } else {
        appendGeneral(out, static_cast<double>(*numbers));
    }
}

void appendElement(std::string& out, const ParameterType& /*type*/, const std::int32_t* number) {
    appendInteger(out, *number);
}

/// The text that is written for the list.
template <typename Number>
std::string textOf(const ParameterType& type, const std::vector<Number>& numbers) {
    std::string text = std::string(type.listWord) + '(';
    for (std::size_t index = 0; index + type.components <= numbers.size();
         index += type.components) {
        if (index > 0) text += separator;
        appendElement(text, type, numbers.data() + index);
    }
    return text += ')';
}

/// Reading numbers is generous, so the proof is in the writing.
template <typename Number>
std::optional<DefaultValue> numberList(const ParameterType& type, std::string_view text) {
    std::vector<Number> numbers = numbersIn<Number>(text);
    if (numbers.empty() || textOf(type, numbers) != text) return std::nullopt;
    return DefaultValue{listCodeOf(type.code), std::move(numbers)};
}

DefaultValue genericList(std::string_view inside) {
    std::vector<DefaultValue> values;
    for (const std::string_view part : split(inside))
        values.push_back({type_code::string, std::string(part)});
    return {type_code::list, std::move(values)};
}

DefaultValue stringList(std::string_view inside) {
    std::vector<Text> texts;
    for (const std::string_view part : split(inside)) texts.emplace_back(part);
    return {listCodeOf(type_code::string), std::move(texts)};
}

DefaultValue pluginList(std::string_view inside, const InstanceNaming& instanceOf) {
    std::vector<PluginReference> references;
    for (const std::string_view part : split(inside))
        references.push_back({true, instanceOf(part), 0});
    return {listCodeOf(type_code::plugin), std::move(references)};
}

/// What stands between the word with its parenthesis and the closing one; nothing when the text is
/// of another form.
std::optional<std::string_view> insideOf(std::string_view text, std::string_view word) {
    if (word.empty() || !text.starts_with(std::string(word) + '(') || !text.ends_with(')')) {
        return std::nullopt;
    }
    return text.substr(word.size() + 1, text.size() - word.size() - 2);
}

}  // namespace

std::optional<DefaultValue> listFromText(std::string_view text, const InstanceNaming& instanceOf) {
    if (const auto inside = insideOf(text, "List")) return genericList(*inside);
    for (const ParameterType& type : parameterTypes) {
        const auto inside = insideOf(text, type.listWord);
        if (!inside) continue;
        switch (type.shape) {
            case ValueShape::integer: return numberList<std::int32_t>(type, text);
            case ValueShape::single:
            case ValueShape::floats: return numberList<float>(type, text);
            case ValueShape::text: return stringList(*inside);
            case ValueShape::plugin: return pluginList(*inside, instanceOf);
            case ValueShape::none:
            case ValueShape::real:
            case ValueShape::boolean:
            case ValueShape::values: break;  // these have no list of their own
        }
    }
    return std::nullopt;
}

}  // namespace metagen::replay

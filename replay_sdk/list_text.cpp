#include "replay_sdk/list_text.h"

#include <array>
#include <charconv>

#include "support/number_text.h"

namespace metagen::replay {

namespace {

constexpr std::string_view separator = ", ";

struct ListForm {
    std::string_view opening;
    std::int32_t kind;
};

constexpr std::array<ListForm, 8> listForms = {{
    {"List(", kind::list},
    {"IntList(", kind::integerList},
    {"FloatList(", kind::floatList},
    {"VectorList(", kind::vectorList},
    {"ColorList(", kind::colorList},
    {"TransformList(", kind::transformList},
    {"StringList(", kind::stringList},
    {"PluginList(", kind::pluginList},
}};

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

void appendTriple(std::string& out, std::string_view opening, const float* numbers) {
    out += opening;
    for (int index = 0; index < 3; ++index) {
        if (index > 0) out += separator;
        appendGeneral(out, static_cast<double>(numbers[index]));
    }
    out += ')';
}

void appendElement(std::string& out, std::int32_t listKind, const float* numbers) {
    switch (listKind) {
        case kind::floatList: appendGeneral(out, static_cast<double>(*numbers)); break;
        case kind::vectorList: appendTriple(out, "Vector(", numbers); break;
        case kind::colorList: appendTriple(out, "Color(", numbers); break;
        default:
            appendTriple(out, "Transform(Matrix(Vector(", numbers);
            appendTriple(out, ", Vector(", numbers + 3);
            appendTriple(out, ", Vector(", numbers + 6);
            appendTriple(out, "), Vector(", numbers + 9);
            out += ')';
    }
}

/// The text that is written for the list.
std::string textOf(const ListForm& form, const std::vector<float>& numbers) {
    const std::size_t width = floatsPerValue(form.kind);
    std::string text(form.opening);
    for (std::size_t index = 0; index + width <= numbers.size(); index += width) {
        if (index > 0) text += separator;
        appendElement(text, form.kind, numbers.data() + index);
    }
    return text += ')';
}

std::string textOf(const ListForm& form, const std::vector<std::int32_t>& numbers) {
    std::string text(form.opening);
    for (const std::int32_t number : numbers) {
        if (text.size() > form.opening.size()) text += separator;
        appendInteger(text, number);
    }
    return text += ')';
}

/// Reading numbers is generous, so the proof is in the writing.
template <typename Number>
std::optional<DefaultValue> numberList(const ListForm& form, std::string_view text) {
    std::vector<Number> numbers = numbersIn<Number>(text);
    if (numbers.empty() || textOf(form, numbers) != text) return std::nullopt;
    return DefaultValue{form.kind, std::move(numbers)};
}

DefaultValue genericList(std::string_view inside) {
    std::vector<DefaultValue> values;
    for (const std::string_view part : split(inside))
        values.push_back({kind::string, std::string(part)});
    return {kind::list, std::move(values)};
}

DefaultValue stringList(std::string_view inside) {
    std::vector<Text> texts;
    for (const std::string_view part : split(inside)) texts.emplace_back(part);
    return {kind::stringList, std::move(texts)};
}

DefaultValue pluginList(std::string_view inside, const InstanceNaming& instanceOf) {
    std::vector<PluginReference> references;
    for (const std::string_view part : split(inside))
        references.push_back({true, instanceOf(part), 0});
    return {kind::pluginList, std::move(references)};
}

}  // namespace

std::optional<DefaultValue> listFromText(std::string_view text, const InstanceNaming& instanceOf) {
    for (const ListForm& form : listForms) {
        if (!text.starts_with(form.opening) || !text.ends_with(')')) continue;
        const std::string_view inside =
            text.substr(form.opening.size(), text.size() - form.opening.size() - 1);
        switch (form.kind) {
            case kind::list: return genericList(inside);
            case kind::stringList: return stringList(inside);
            case kind::pluginList: return pluginList(inside, instanceOf);
            case kind::integerList: return numberList<std::int32_t>(form, text);
            default: return numberList<float>(form, text);
        }
    }
    return std::nullopt;
}

}  // namespace metagen::replay

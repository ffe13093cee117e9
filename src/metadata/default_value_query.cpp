#include "metadata/default_value_query.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "metadata/parameter_type.h"
#include "sdk/entry_point_table.h"
#include "sdk/sdk_memory.h"
#include "support/numeric.h"

namespace metagen {

namespace {

constexpr std::int32_t defaultValueGuide = 22;

Components componentsOf(std::span<const float> numbers) {
    Components components = {};
    std::copy_n(numbers.begin(), std::min(numbers.size(), components.size()), components.begin());
    return components;
}

TaggedValue compound(std::int32_t tag, std::span<const float> numbers) {
    return {.tag = tag, .payload = componentsOf(numbers)};
}

TaggedValue grey(std::int32_t tag, float number) {
    return compound(tag, std::array{number, number, number});
}

TaggedValue opaque(std::span<const float> color) {
    return compound(type_code::acolor, std::array{color[0], color[1], color[2], 1.0F});
}

[[noreturn]] void throwWrongSize() { throw std::invalid_argument("Wrong size of default values"); }

TaggedValue exactly(std::int32_t tag, std::size_t count, std::span<const float> sequence) {
    if (sequence.size() != count) throwWrongSize();
    return compound(tag, sequence);
}

TaggedValue vectorOrColor(std::int32_t tag, std::span<const float> sequence) {
    switch (sequence.size()) {
        case 1: return grey(tag, sequence[0]);
        case 3: return compound(tag, sequence);
        default: throwWrongSize();
    }
}

TaggedValue acolor(std::span<const float> sequence) {
    switch (sequence.size()) {
        case 1: return opaque(std::array{sequence[0], sequence[0], sequence[0]});
        case 3: return opaque(sequence);
        case 4: return compound(type_code::acolor, sequence);
        default: throwWrongSize();
    }
}

TaggedValue textureColor(std::span<const float> sequence) {
    switch (sequence.size()) {
        case 1: return grey(type_code::color, sequence[0]);
        case 3: return compound(type_code::color, sequence);
        case 4: return compound(type_code::acolor, sequence);
        default: throwWrongSize();
    }
}

TaggedValue readGuide(const void* definition, std::int32_t code) {
    const EntryPointTable& sdk = entryPoints();
    float single = 0;
    sdk.Qyra_UIGuides_getFloat(definition, defaultValueGuide, &single);
    float* numbers = nullptr;
    const std::uint32_t count =
        sdk.Qyra_UIGuides_getFloats(definition, defaultValueGuide, &numbers);
    const SdkArray<float> owner(numbers);
    return valueOfGuide(code, single, {numbers, numbers == nullptr ? 0 : std::size_t{count}});
}

PluginReference referenceOf(const QyraPluginReference& reference) {
    return {.renderer = reference.renderer,
            .pluginId = reference.pluginId,
            .propertyIndex = reference.propertyIndex};
}

std::string textOf(const char* text) { return text != nullptr ? text : ""; }

/// The elements, each converted.
template <typename Element, typename Convert>
auto convertElements(const QyraValue& value, const Convert& convert) {
    const std::span<const Element> elements = elementsOf<const Element>(value);
    std::vector<decltype(convert(elements[0]))> list;
    list.reserve(elements.size());
    for (const Element& element : elements) list.push_back(convert(element));
    return list;
}

/// The compound values that a flat array of floats holds, width floats each.
std::vector<Components> compoundElements(const QyraValue& value, std::size_t width) {
    const auto* numbers = static_cast<const float*>(value.elements);
    std::vector<Components> list(numbers == nullptr ? 0 : value.count);
    for (Components& element : list) {
        element = componentsOf({numbers, width});
        numbers += width;
    }
    return list;
}

TaggedValue::Payload listPayload(const QyraValue& value) {
    switch (value.kind) {
        case qyra_kind::genericList: return convertElements<QyraValue>(value, valueOfSdk);
        case qyra_kind::integerList:
            return convertElements<std::int32_t>(value, [](std::int32_t number) { return number; });
        case qyra_kind::floatList:
            return convertElements<float>(value, [](float number) { return number; });
        case qyra_kind::vectorList:
        case qyra_kind::colorList: return compoundElements(value, 3);
        case qyra_kind::transformList: return compoundElements(value, 12);
        case qyra_kind::textList: return convertElements<char*>(value, textOf);
        case qyra_kind::pluginList: return convertElements<QyraPluginReference>(value, referenceOf);
        default: return {};
    }
}

TaggedValue::Payload compoundPayload(const QyraValue& value, std::size_t width) {
    return componentsOf(std::span(value.components).first(width));
}

}  // namespace

TaggedValue queryDefaultValue(const void* definition, std::int32_t code) {
    const EntryPointTable& sdk = entryPoints();
    std::int32_t hasGuide = 0;
    sdk.Qyra_UIGuides_hasType(definition, defaultValueGuide, &hasGuide);
    if (hasGuide != 0) return readGuide(definition, code);
    SdkValue value;
    sdk.Qyra_PluginUtils_getPropertyDefaultValue(definition, &value.raw);
    return valueOfSdk(value.raw);
}

TaggedValue valueOfGuide(std::int32_t code, float single, std::span<const float> sequence) {
    switch (code) {
        case type_code::integer:
        case type_code::integerTexture:
            return {.tag = type_code::integer, .payload = toInt32(static_cast<double>(single))};
        case type_code::floatNumber:
        case type_code::doubleNumber:
        case type_code::floatTexture: return {.tag = type_code::floatNumber, .payload = single};
        case type_code::boolean: return {.tag = type_code::boolean, .payload = single != 0};
        case type_code::vector:
        case type_code::color: return vectorOrColor(code, sequence);
        case type_code::acolor: return acolor(sequence);
        case type_code::matrix:
        case type_code::matrixTexture: return exactly(type_code::matrix, 9, sequence);
        case type_code::transform:
        case type_code::transformTexture: return exactly(type_code::transform, 12, sequence);
        case type_code::plugin:
        case type_code::texture: return textureColor(sequence);
        case type_code::vectorTexture:
            return compound(type_code::vector,
                            sequence.first(std::min<std::size_t>(sequence.size(), 3)));
        default: throw std::invalid_argument("Wrong type of default values");
    }
}

TaggedValue valueOfSdk(const QyraValue& value) {
    TaggedValue result = {.tag = value.kind, .payload = {}};
    switch (value.kind) {
        case type_code::integer: result.payload = value.integer; break;
        case type_code::floatNumber: result.payload = value.single; break;
        case type_code::doubleNumber: result.payload = value.real; break;
        case type_code::boolean: result.payload = value.boolean != 0; break;
        case type_code::vector:
        case type_code::color: result.payload = compoundPayload(value, 3); break;
        case type_code::acolor: result.payload = compoundPayload(value, 4); break;
        case type_code::matrix: result.payload = compoundPayload(value, 9); break;
        case type_code::transform: result.payload = compoundPayload(value, 12); break;
        case type_code::string: result.payload = textOf(value.text); break;
        case type_code::plugin: result.payload = referenceOf(value.reference); break;
        default: result.payload = listPayload(value); break;
    }
    return result;
}

}  // namespace metagen

#include "metadata/default_value_text.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "sdk/parameter_type.h"
#include "support/numbers.h"

namespace metagen {

namespace {

QyraValue compound(std::int32_t kind, std::span<const float> numbers) {
    QyraValue value = {};
    value.kind = kind;
    std::copy_n(numbers.begin(), std::min(numbers.size(), std::size(value.components)),
                value.components);
    return value;
}

/// A colour or a vector may be told by one number, a colour with alpha also without its alpha, and
/// a texture's colour with one.
QyraValue compoundOf(const ParameterType& type, std::span<const float> numbers) {
    const std::size_t count = numbers.size();
    if (type.code == type_code::vectorTexture) return compound(type.guided, numbers);
    const bool isTexture = type.code == type_code::plugin || type.code == type_code::texture;
    const std::int32_t kind = isTexture && count == 4 ? type_code::acolor : type.guided;
    const std::size_t components = findType(kind)->components;
    const bool isShort = components <= 4 && count == 1;
    const bool isOpaque = kind == type_code::acolor && count == 3;
    if (count != components && !isShort && !isOpaque) {
        throw std::invalid_argument("Wrong size of default values");
    }
    if (isShort) return compoundOf(type, std::array{numbers[0], numbers[0], numbers[0]});
    if (isOpaque) return compound(kind, std::array{numbers[0], numbers[1], numbers[2], 1.0F});
    return compound(kind, numbers);
}

}  // namespace

QyraValue valueOfGuide(std::int32_t code, float number, std::span<const float> sequence) {
    const ParameterType* type = findType(code);
    const ParameterType* guided = type == nullptr ? nullptr : findType(type->guided);
    QyraValue value = {};
    if (guided != nullptr) value.kind = guided->code;
    switch (guided == nullptr ? ValueShape::none : guided->shape) {
        case ValueShape::integer:
            value.integer = toInt32(static_cast<double>(number));
            return value;
        case ValueShape::single: value.single = number; return value;
        case ValueShape::boolean: value.boolean = number != 0 ? 1 : 0; return value;
        case ValueShape::floats: return compoundOf(*type, sequence);
        case ValueShape::none:
        case ValueShape::real:
        case ValueShape::text:
        case ValueShape::plugin:
        case ValueShape::values: break;
    }
    throw std::invalid_argument("Wrong type of default values");
}

}  // namespace metagen

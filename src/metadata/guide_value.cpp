#include "metadata/guide_value.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "sdk/parameter_type.h"
#include "support/numeric.h"

namespace metagen {

namespace {

QyraValue compound(std::int32_t kind, std::span<const float> numbers) {
    QyraValue value = {};
    value.kind = kind;
    std::copy_n(numbers.begin(), std::min(numbers.size(), std::size(value.components)),
                value.components);
    return value;
}

QyraValue grey(std::int32_t kind, float number) {
    return compound(kind, std::array{number, number, number});
}

QyraValue opaque(std::span<const float> color) {
    return compound(type_code::acolor, std::array{color[0], color[1], color[2], 1.0F});
}

[[noreturn]] void throwWrongSize() { throw std::invalid_argument("Wrong size of default values"); }

QyraValue exactly(std::int32_t kind, std::size_t count, std::span<const float> sequence) {
    if (sequence.size() != count) throwWrongSize();
    return compound(kind, sequence);
}

QyraValue vectorOrColor(std::int32_t kind, std::span<const float> sequence) {
    return sequence.size() == 1 ? grey(kind, sequence[0]) : exactly(kind, 3, sequence);
}

QyraValue acolor(std::span<const float> sequence) {
    if (sequence.size() == 1) return opaque(std::array{sequence[0], sequence[0], sequence[0]});
    if (sequence.size() == 3) return opaque(sequence);
    return exactly(type_code::acolor, 4, sequence);
}

QyraValue textureColor(std::span<const float> sequence) {
    if (sequence.size() == 4) return compound(type_code::acolor, sequence);
    return vectorOrColor(type_code::color, sequence);
}

QyraValue integer(float number) {
    QyraValue value = {};
    value.kind = type_code::integer;
    value.integer = toInt32(static_cast<double>(number));
    return value;
}

QyraValue boolean(float number) {
    QyraValue value = {};
    value.kind = type_code::boolean;
    value.boolean = number != 0 ? 1 : 0;
    return value;
}

QyraValue single(float number) {
    QyraValue value = {};
    value.kind = type_code::floatNumber;
    value.single = number;
    return value;
}

}  // namespace

QyraValue valueOfGuide(std::int32_t code, float number, std::span<const float> sequence) {
    switch (code) {
        case type_code::integer:
        case type_code::integerTexture: return integer(number);
        case type_code::floatNumber:
        case type_code::doubleNumber:
        case type_code::floatTexture: return single(number);
        case type_code::boolean: return boolean(number);
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
                            sequence.first(std::min(sequence.size(), std::size_t{3})));
        default: throw std::invalid_argument("Wrong type of default values");
    }
}

}  // namespace metagen

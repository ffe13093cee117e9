// Owners of what the SDK hands out: each gives its block back through the SDK's own entry point,
// on every path.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "sdk/qyra_sdk.h"

namespace metagen {

struct SdkMemoryRelease {
    void operator()(void* memory) const noexcept;
};

/// An array that is freed with `C_memory_free`.
template <typename Element>
using SdkArray = std::unique_ptr<Element[], SdkMemoryRelease>;

/// The elements of a list value; none when the SDK gave no array for them.
template <typename Element>
std::span<Element> elementsOf(const QyraValue& value) {
    auto* elements = static_cast<Element*>(value.elements);
    return {elements, elements == nullptr ? 0 : std::size_t{value.count}};
}

/// The number of elements when the value is a list of any kind, otherwise zero.
std::size_t elementCount(const QyraValue& value);

/// A value and everything that hangs below it.
class SdkValue {
public:
    SdkValue() = default;
    SdkValue(const SdkValue&) = delete;
    SdkValue& operator=(const SdkValue&) = delete;
    ~SdkValue();

    /// The value itself, to be filled by the SDK and read by the owner.
    QyraValue raw{};
};

/// The texts of an SDK text vector, in order; a null text reads as empty. The vector is released
/// once it is read; a null vector is an empty list.
std::vector<std::string> takeTexts(void* textVector);

}  // namespace metagen

#include "sdk/sdk_memory.h"

#include "sdk/entry_point_table.h"
#include "sdk/parameter_type.h"

namespace metagen {

namespace {

void freeBlock(void* memory) noexcept { entryPoints().C_memory_free(memory); }

bool isList(const QyraValue& value) {
    return value.kind == type_code::list || findElementType(value.kind) != nullptr;
}

void freeParts(QyraValue& value) noexcept {
    if (value.kind == type_code::string) freeBlock(value.text);
    if (!isList(value)) return;
    if (value.kind == type_code::list) {
        for (QyraValue& element : elementsOf<QyraValue>(value)) freeParts(element);
    } else if (findElementType(value.kind)->shape == ValueShape::text) {
        for (char* text : elementsOf<char*>(value)) freeBlock(text);
    }
    freeBlock(value.elements);
}

/// Releases a text vector however its reading ends.
class TextVectorOwner {
public:
    explicit TextVectorOwner(void* textVector) : vector(textVector) {}
    TextVectorOwner(const TextVectorOwner&) = delete;
    TextVectorOwner& operator=(const TextVectorOwner&) = delete;
    ~TextVectorOwner() { entryPoints().releaseVector(vector); }

private:
    void* vector;
};

}  // namespace

void SdkMemoryRelease::operator()(void* memory) const noexcept { freeBlock(memory); }

std::size_t elementCount(const QyraValue& value) {
    return isList(value) ? elementsOf<const void*>(value).size() : 0;
}

SdkValue::~SdkValue() { freeParts(raw); }

std::vector<std::string> takeTexts(void* textVector) {
    if (textVector == nullptr) return {};
    const TextVectorOwner owner(textVector);
    const EntryPointTable& sdk = entryPoints();
    const std::uint32_t count = sdk.getVectorSize(textVector);
    std::vector<std::string> texts;
    texts.reserve(count);
    for (std::uint32_t index = 0; index < count; ++index) {
        const char* text = sdk.getVectorElement(textVector, index);
        texts.emplace_back(text != nullptr ? text : "");
    }
    return texts;
}

}  // namespace metagen

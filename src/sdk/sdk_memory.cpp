#include "sdk/sdk_memory.h"

#include "sdk/entry_point_table.h"

namespace metagen {

namespace {

void freeBlock(void* memory) noexcept { entryPoints().C_memory_free(memory); }

void freeParts(QyraValue& value) noexcept {
    switch (value.kind) {
        case qyra_kind::text: freeBlock(value.text); return;
        case qyra_kind::genericList:
            for (QyraValue& element : elementsOf<QyraValue>(value)) freeParts(element);
            break;
        case qyra_kind::textList:
            for (char* text : elementsOf<char*>(value)) freeBlock(text);
            break;
        case qyra_kind::integerList:
        case qyra_kind::floatList:
        case qyra_kind::vectorList:
        case qyra_kind::colorList:
        case qyra_kind::transformList:
        case qyra_kind::pluginList: break;
        default: return;
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

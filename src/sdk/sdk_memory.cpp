#include "sdk/sdk_memory.h"

#include <algorithm>
#include <array>

#include "sdk/entry_point_table.h"

namespace metagen {

namespace {

void freeBlock(void* memory) noexcept { entryPoints().C_memory_free(memory); }

bool isList(const QyraValue& value) {
    constexpr std::array kinds = {qyra_kind::genericList, qyra_kind::integerList,
                                  qyra_kind::floatList,   qyra_kind::vectorList,
                                  qyra_kind::colorList,   qyra_kind::transformList,
                                  qyra_kind::textList,    qyra_kind::pluginList};
    return std::ranges::find(kinds, value.kind) != kinds.end();
}

void freeParts(QyraValue& value) noexcept {
    if (value.kind == qyra_kind::text) freeBlock(value.text);
    if (!isList(value)) return;
    if (value.kind == qyra_kind::genericList) {
        for (QyraValue& element : elementsOf<QyraValue>(value)) freeParts(element);
    }
    if (value.kind == qyra_kind::textList) {
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

// Text vectors, and giving back what the library handed out.
#include "replay_sdk/entry_points.h"
#include "replay_sdk/library.h"

using metagen::replay::EntryPoint;
using metagen::replay::library;
using metagen::replay::Subject;
using metagen::replay::TextVector;

namespace {

const TextVector* enter(EntryPoint entryPoint, const void* vector) {
    library().ledger.countCall(entryPoint);
    return library().findTextVector(vector, entryPoint);
}

}  // namespace

void C_memory_free(void* memory) {
    library().ledger.countCall(EntryPoint::C_memory_free);
    if (memory != nullptr) library().release(Subject::block, memory, EntryPoint::C_memory_free);
}

void releaseCharString(char* text) {
    // No entry point hands out a text of its own, so there is nothing to expect here.
    library().ledger.countCall(EntryPoint::releaseCharString);
    library().release(Subject::nothing, text, EntryPoint::releaseCharString);
}

std::uint32_t getVectorSize(const void* vector) {
    const TextVector* texts = enter(EntryPoint::getVectorSize, vector);
    return texts == nullptr ? 0 : static_cast<std::uint32_t>(texts->size());
}

const char* getVectorElement(const void* vector, std::uint32_t index) {
    constexpr EntryPoint self = EntryPoint::getVectorElement;
    const TextVector* texts = enter(self, vector);
    if (texts == nullptr) return nullptr;
    if (index >= texts->size())
        library().ledger.noteFinding("index beyond the text vector in getVectorElement");
    return texts->at(index);
}

void releaseVector(void* vector) {
    library().ledger.countCall(EntryPoint::releaseVector);
    library().release(Subject::textVector, vector, EntryPoint::releaseVector);
}

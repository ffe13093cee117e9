// Text vectors, and giving back what the library handed out.
#include "replay_sdk/entry_points.h"
#include "replay_sdk/library_state.h"

using metagen::replay::EntryPoint;
using metagen::replay::state;
using metagen::replay::Subject;
using metagen::replay::TextVector;

namespace {

const TextVector* enter(EntryPoint entryPoint, const void* vector) {
    state().ledger.countCall(entryPoint);
    return state().findTextVector(vector, entryPoint);
}

}  // namespace

void C_memory_free(void* memory) {
    state().ledger.countCall(EntryPoint::C_memory_free);
    if (memory != nullptr) state().release(Subject::block, memory, EntryPoint::C_memory_free);
}

void releaseCharString(char* text) {
    // No entry point hands out a text of its own, so there is nothing to expect here.
    state().ledger.countCall(EntryPoint::releaseCharString);
    state().release(Subject::nothing, text, EntryPoint::releaseCharString);
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
        state().ledger.noteFinding("index beyond the text vector in getVectorElement");
    return texts->at(index);
}

void releaseVector(void* vector) {
    state().ledger.countCall(EntryPoint::releaseVector);
    state().release(Subject::textVector, vector, EntryPoint::releaseVector);
}

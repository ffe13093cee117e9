#include "replay_sdk/library_state.h"

#include <utility>

#include "replay_sdk/platform.h"

namespace metagen::replay {

namespace {

void writeLedger(const std::string& path, std::string_view text) {
    if (path.empty()) return;
    const File file = openBytesForWriting(path);
    if (file) {
        writeAll(file.get(), text);
    } else {
        static_cast<void>(
            std::fprintf(stderr, "replay SDK: %s: the ledger can't be written\n", path.c_str()));
    }
}

// Made when the library is loaded, so that a ledger's file stands for a loaded library, and
// destroyed when it is unloaded or the process ends.
LibraryState theState(environmentVariable("QYRA_REPLAY_LEDGER"));

}  // namespace

LibraryState& state() { return theState; }

LibraryState::LibraryState(std::string ledgerPath)
    : blocks(!ledgerPath.empty()), path(std::move(ledgerPath)) {
    // Takes the place of an older run's ledger, should this process end without its last word.
    writeLedger(path, unfinishedLedger);
}

LibraryState::~LibraryState() {
    if (path.empty()) return;
    noteUnreleased();
    writeLedger(path, ledger.text());
}

void* LibraryState::createRenderer(std::int32_t& errorCode) {
    if (!source) source = openAnswerSource();
    const std::optional<std::int32_t> error = source->creationError();
    errorCode = error.value_or(0);
    return error ? nullptr : renderers.create(Renderer{});
}

const AnswerSource* LibraryState::answers(const void* renderer, EntryPoint caller) {
    return findRenderer(renderer, caller) == nullptr ? nullptr : source.get();
}

Renderer* LibraryState::findRenderer(const void* renderer, EntryPoint caller) {
    Renderer* found = renderers.find(renderer);
    if (found == nullptr) noteMisuse(renderer, caller);
    return found;
}

const TextVector* LibraryState::findTextVector(const void* vector, EntryPoint caller) {
    const TextVector* found = textVectors.find(vector);
    if (found == nullptr) noteMisuse(vector, caller);
    return found;
}

std::optional<std::size_t> LibraryState::findParameter(const void* definition, EntryPoint caller) {
    const std::optional<HandleParts> parts = readHandle(definition);
    if (parts && parts->kind == HandleKind::definition && renderers.liveCount() > 0 &&
        parts->index < source->parameterCount())
        return parts->index;
    noteMisuse(definition, caller);
    return std::nullopt;
}

void LibraryState::release(Subject expected, void* address, EntryPoint caller) {
    // The usual case first: a block goes back for every parameter.
    if (expected == Subject::block && blocks.release(address)) return;
    const Description found = describe(address);
    if (address == nullptr) {
        ledger.noteFinding(std::string("null handle released by ") + nameOf(caller));
        return;
    }
    if (!found.live || found.subject != expected) noteBadRelease(found, caller);
    switch (found.subject) {
        case Subject::renderer: renderers.release(address); break;
        case Subject::textVector: textVectors.release(address); break;
        case Subject::block: blocks.release(address); break;
        case Subject::definition:
        case Subject::nothing: break;
    }
}

void* LibraryState::handOut(std::optional<TextVector> vector) {
    return vector ? textVectors.create(std::move(*vector)) : nullptr;
}

void* LibraryState::newestRenderer() const { return renderers.newestLive(); }

LibraryState::Description LibraryState::describe(const void* address) const {
    if (const std::optional<HandleParts> parts = readHandle(address))
        return describeHandle(*parts, address);
    if (const std::optional<EntryPoint> maker = blocks.makerOfLive(address))
        return {Subject::block, true, std::string("block of ") + nameOf(*maker)};
    if (const std::optional<EntryPoint> maker = blocks.makerOfReleased(address))
        return {Subject::block, false, std::string("block of ") + nameOf(*maker)};
    return {};
}

LibraryState::Description LibraryState::describeHandle(const HandleParts& parts,
                                                       const void* handle) const {
    if (renderers.wasCreated(parts))
        return {Subject::renderer, renderers.find(handle) != nullptr, "renderer"};
    if (textVectors.wasCreated(parts))
        return {Subject::textVector, textVectors.find(handle) != nullptr, "text vector"};
    if (parts.kind == HandleKind::definition && source && parts.index < source->parameterCount())
        return {Subject::definition, renderers.liveCount() > 0, "definition"};
    return {};
}

void LibraryState::noteMisuse(const void* address, EntryPoint caller) {
    const std::string where = std::string(" in ") + nameOf(caller);
    const Description found = describe(address);
    if (address == nullptr) {
        ledger.noteFinding("null handle" + where);
    } else if (found.subject == Subject::nothing) {
        ledger.noteFinding("unknown handle" + where);
    } else {
        ledger.noteFinding((found.live ? "wrong handle: " : "dead handle: ") + found.words + where);
    }
}

void LibraryState::noteBadRelease(const Description& found, EntryPoint caller) {
    const std::string by = std::string(" by ") + nameOf(caller);
    if (found.subject == Subject::nothing) {
        ledger.noteFinding("unknown handle released" + by);
    } else {
        ledger.noteFinding((found.live ? "wrong release: " : "released twice: ") + found.words +
                           by);
    }
}

void LibraryState::noteUnreleased() {
    const auto note = [this](const std::string& words, std::size_t live) {
        if (live > 0) ledger.noteFinding("not released: " + words, live);
    };
    note("renderer", renderers.liveCount());
    note("text vector", textVectors.liveCount());
    for (const auto& [maker, live] : blocks.liveByMaker())
        note(std::string("block of ") + nameOf(maker), live);
    const auto created = [this](const char* objects, std::size_t count, std::size_t live) {
        ledger.noteCreated(objects, count, count - live);
    };
    created("renderers", renderers.createdCount(), renderers.liveCount());
    created("text vectors", textVectors.createdCount(), textVectors.liveCount());
    created("blocks", blocks.createdCount(), blocks.liveCount());
}

}  // namespace metagen::replay

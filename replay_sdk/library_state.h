// The state behind the entry points: the source of answers, what was handed out, and the ledger.
// One object per loaded library; everything runs on one thread.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "replay_sdk/answer_source.h"
#include "replay_sdk/block_registry.h"
#include "replay_sdk/handles.h"
#include "replay_sdk/ledger.h"

namespace metagen::replay {

/// A renderer that was created. Its user data is the caller's and is not looked at.
struct Renderer {
    void* userData = nullptr;
};

/// What an address that a caller passes can name.
enum class Subject : std::uint8_t { nothing, renderer, textVector, definition, block };

class LibraryState {
public:
    /// ledgerPath names the ledger's file; empty: no ledger is written.
    explicit LibraryState(std::string ledgerPath);
    ~LibraryState();  ///< writes the ledger
    LibraryState(const LibraryState&) = delete;
    LibraryState& operator=(const LibraryState&) = delete;

    /// A new renderer, or null and the source's error code.
    void* createRenderer(std::int32_t& errorCode);

    /// The source, when the handle is a live renderer; otherwise null, and the call is noted.
    const AnswerSource* answers(const void* renderer, EntryPoint caller);

    /// The live renderer; null as above.
    Renderer* findRenderer(const void* renderer, EntryPoint caller);

    /// The live text vector; null as above.
    const TextVector* findTextVector(const void* vector, EntryPoint caller);

    /// The number of the parameter that the definition describes; nothing when it describes none
    /// or no renderer is live, and the call is noted.
    std::optional<std::size_t> findParameter(const void* definition, EntryPoint caller);

    /// The source for a number that findParameter gave.
    const AnswerSource& parameterAnswers() const { return *source; }

    /// Ends what the address names. What isn't of the expected kind is noted, and ended all the
    /// same if it is live: it was released, though by the wrong call.
    void release(Subject expected, void* address, EntryPoint caller);

    /// A handle for the vector, or null for none.
    void* handOut(std::optional<TextVector> vector);

    /// The newest renderer that is live, or null.
    void* newestRenderer() const;

    Ledger ledger;
    BlockRegistry blocks;

private:
    /// What an address names, whether it still lives, and the words for it in a finding.
    struct Description {
        Subject subject = Subject::nothing;
        bool live = false;
        std::string words;
    };

    Description describe(const void* address) const;
    Description describeHandle(const HandleParts& parts, const void* handle) const;
    void noteMisuse(const void* address, EntryPoint caller);
    void noteBadRelease(const Description& found, EntryPoint caller);
    void noteUnreleased();

    std::string path;
    std::unique_ptr<AnswerSource> source;  ///< opened by the first creation of a renderer
    HandleTable<Renderer> renderers{HandleKind::renderer};
    HandleTable<TextVector> textVectors{HandleKind::textVector};
};

/// The one of this process.
LibraryState& state();

}  // namespace metagen::replay

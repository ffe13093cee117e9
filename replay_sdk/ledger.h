// What the library saw of its user: the calls, what was created and released, and every misuse.
// README.md documents the text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "replay_sdk/entry_point.h"

namespace metagen::replay {

/// The ledger of a process that never came to unload the library.
inline constexpr std::string_view unfinishedLedger = "unfinished\n";

class Ledger {
public:
    void countCall(EntryPoint entryPoint) { ++calls[static_cast<std::size_t>(entryPoint)]; }

    /// The last state that the start-up call asked for.
    void noteFrameBuffer(bool enabled) { frameBuffer = enabled; }

    /// Equal findings are counted, not repeated.
    void noteFinding(const std::string& finding, std::size_t times = 1);

    /// A line on the objects of one kind.
    void noteCreated(const std::string& objects, std::size_t created, std::size_t released);

    /// The whole ledger; its first line is "clean" when there is no finding, else "not clean".
    std::string text() const;

private:
    std::string startUpLine() const;
    std::size_t callsOf(EntryPoint entryPoint) const {
        return calls[static_cast<std::size_t>(entryPoint)];
    }

    std::array<std::size_t, entryPointCount> calls = {};
    std::optional<bool> frameBuffer;
    std::string createdLines;
    std::map<std::string, std::size_t> findings;
};

}  // namespace metagen::replay

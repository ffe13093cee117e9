// What every fuzz target is made of: one function that takes the bytes of an input. libFuzzer calls
// it with inputs of its own making; linked without libFuzzer it replays inputs that were kept.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace metagen::fuzz {

/// Thrown where the tool would end the process, so that the run of one input ends alone.
struct ProcessEnded {
    int status;
};

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// The two documents of an input, separated by its first form feed. No valid document holds one.
inline std::pair<std::string_view, std::string_view> twoDocuments(std::string_view text) {
    const std::size_t separator = text.find('\f');
    if (separator == std::string_view::npos) return {text, "{}"};
    return {text.substr(0, separator), text.substr(separator + 1)};
}

/// Ends the process, and with it the fuzzing, when a promise of the tool is broken.
void require(bool condition, const char* promise);

/// Runs the body and swallows what ends a run of the tool in an orderly way: an end of the process
/// and the exceptions whose texts users see. Anything else is a finding.
void runToItsEnd(void (*body)(std::string_view text), std::string_view text);

}  // namespace metagen::fuzz

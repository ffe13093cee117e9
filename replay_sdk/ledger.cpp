#include "replay_sdk/ledger.h"

namespace metagen::replay {

void Ledger::noteFinding(const std::string& finding, std::size_t times) {
    findings[finding] += times;
}

void Ledger::noteCreated(const std::string& objects, std::size_t created, std::size_t released) {
    createdLines += "created " + std::to_string(created) + ' ' + objects + ", released " +
                    std::to_string(released) + '\n';
}

std::string Ledger::startUpLine() const {
    const bool counted = callsOf(EntryPoint::Qyra_incrementModuleReferenceCounter) > 0;
    std::string line = "start-up";
    line += counted ? " reference counted" : " reference not counted";
    if (!frameBuffer) return line + ", frame buffer not set\n";
    return line + (*frameBuffer ? ", frame buffer on\n" : ", frame buffer off\n");
}

std::string Ledger::text() const {
    std::string text = findings.empty() ? "clean\n" : "not clean\n";
    for (const auto& [finding, times] : findings)
        text += "finding " + std::to_string(times) + ' ' + finding + '\n';
    text += startUpLine();
    text += createdLines;
    for (std::size_t index = 0; index < entryPointCount; ++index)
        text += "calls " + std::to_string(calls[index]) + ' ' + entryPointNames[index] + '\n';
    return text;
}

}  // namespace metagen::replay

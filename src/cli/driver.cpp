#include "cli/driver.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "cli/options.h"
#include "combine/combine.h"
#include "diff/diff.h"
#include "dump/dump.h"
#include "genh/genh.h"
#include "genm/genm.h"
#include "sdk/exceptions.h"
#include "sdk/sdk_session.h"
#include "support/end_run.h"

namespace metagen {

namespace {

constexpr std::string_view inputMissing = "Input file not specified\n";
constexpr std::string_view outputMissing = "Output file not specified\n";
constexpr std::string_view leftMissing = "Left hand side file not specified\n";
constexpr std::string_view rightMissing = "Right hand side file not specified\n";

struct Command {
    std::string_view word;
    std::string_view usage;  ///< the options that it takes
    /// The message for the first file that is not named; empty when all are.
    std::string_view (*missingFile)(const Options& options);
    void (*run)(const Options& options);
};

std::string_view missingOfDump(const Options& options) {
    return options.output == nullptr ? outputMissing : std::string_view();
}

std::string_view missingOfDiff(const Options& options) {
    if (options.left == nullptr) return leftMissing;
    if (options.right == nullptr) return rightMissing;
    return missingOfDump(options);
}

std::string_view missingOfConversion(const Options& options) {
    return options.input == nullptr ? inputMissing : missingOfDump(options);
}

constexpr std::array<Command, 5> commands = {{
    {"dump", "-o <base.json>", missingOfDump, [](const Options& options) { dump(options.output); }},
    {"combine", "-i <stripped.json> -o <combined.json>", missingOfConversion,
     [](const Options& options) { combine(options.input, options.output); }},
    {"diff", "-l <left.json> -r <right.json> -o <diff.txt>", missingOfDiff,
     [](const Options& options) { diff(options.left, options.right, options.output); }},
    {"genh", "-i <combined.json> -o <code>", missingOfConversion,
     [](const Options& options) { genh(options.input, options.output); }},
    {"genm", "-i <combined.json> -o <code>", missingOfConversion,
     [](const Options& options) { genm(options.input, options.output); }},
}};

void printUsage() {
    std::string text = " Usage:\n";
    for (const Command& command : commands) {
        text.append(" ").append(command.word).append(" ").append(command.usage).append("\n");
    }
    print(text);
}

/// A word that names no command is checked like a conversion, and is then no error.
constexpr Command unknownCommand = {"", "", missingOfConversion,
                                    [](const Options&) { printUsage(); }};

const Command& findCommand(std::string_view word) {
    const auto command = std::ranges::find(commands, word, &Command::word);
    return command == commands.end() ? unknownCommand : *command;
}

/// Brings the SDK up; nothing, with the reason printed, when that fails.
bool bringUp(std::optional<SdkSession>& session) try {
    session.emplace();
    session->start();
    return true;
} catch (const Qyra::QyraException& exception) {
    print(exception.message() + '\n');
    return false;
}

}  // namespace

int runDriver(int argumentCount, const char* const* arguments) {
    if (argumentCount <= 1) {
        printUsage();
        return 0;
    }
    // Brought up before any option is looked at, whatever the word: a broken installation shows
    // itself on every command line.
    std::optional<SdkSession> session;
    if (!bringUp(session)) return failureStatus;
    const std::span words(arguments, static_cast<std::size_t>(argumentCount));
    const Options options = readOptions(words.subspan(2));
    const Command& command = findCommand(foldCommandWord(words[1]));
    if (const std::string_view message = command.missingFile(options); !message.empty()) {
        print(message);
        return failureStatus;
    }
    command.run(options);
    return 0;
}

}  // namespace metagen

#include "cli/options.h"

#include <string_view>

namespace metagen {

namespace {

/// The slot of an option, or null for a word that is no option.
const char** slotOf(Options& options, std::string_view name) {
    if (name == "-i") return &options.input;
    if (name == "-o") return &options.output;
    if (name == "-l") return &options.left;
    if (name == "-r") return &options.right;
    return nullptr;
}

char lowerCased(char letter) {
    const bool upperCase = letter >= 'A' && letter <= 'Z';
    return upperCase ? static_cast<char>(letter - 'A' + 'a') : letter;
}

}  // namespace

Options readOptions(std::span<const char* const> arguments) {
    Options options;
    for (std::size_t i = 0; i + 1 < arguments.size(); i += 2) {
        if (const char** slot = slotOf(options, arguments[i])) *slot = arguments[i + 1];
    }
    return options;
}

std::string foldCommandWord(std::string word) {
    for (char& letter : word) letter = lowerCased(letter);
    return word;
}

}  // namespace metagen

// The command line: a command word and the options after it, read in fixed pairs.
#pragma once

#include <span>
#include <string>

namespace metagen {

/// The values of the options, pointing into the argument vector; null when not given.
struct Options {
    const char* input = nullptr;   ///< -i
    const char* output = nullptr;  ///< -o
    const char* left = nullptr;    ///< -l
    const char* right = nullptr;   ///< -r
};

/// Reads the arguments after the command word in pairs of a name and a value, by position: a stray
/// word shifts every later pair, and scripts rely on that. Unknown names are skipped with their
/// value, an odd last argument is ignored, and the last of equal options wins.
Options readOptions(std::span<const char* const> arguments);

/// The command word as the table names it: ASCII letters lower-cased.
std::string foldCommandWord(std::string word);

}  // namespace metagen

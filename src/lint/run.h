// A whole run of metagen-lint, and its command line.
#pragma once

#include <optional>
#include <set>
#include <string>

#include "lint/report.h"

namespace metagen::lint {

struct Options {
    std::string path;
    std::string base;      ///< empty: the SDK is asked
    std::string previous;  ///< empty: there is none
    Format format = Format::text;
    std::set<std::string, std::less<>> disabled;  ///< names of rules
    bool isStrict = false;
    bool isFixing = false;
};

/// The exit statuses.
inline constexpr int cleanStatus = 0;
inline constexpr int findingsStatus = 1;
inline constexpr int failureStatus = 2;

/// A command line that asks for no run, or for none that can be made, has its status instead.
struct CommandLine {
    Options options;
    std::optional<int> status = {};
};

/// Reads the command line. Prints what --help, --version and --rules ask for; what is wrong goes to
/// standard error.
CommandLine readCommandLine(int argumentCount, const char* const* arguments);

/// Does what the arguments ask for and returns the exit status. Findings go to standard output,
/// what keeps it from finding any to standard error.
int run(int argumentCount, const char* const* arguments);

}  // namespace metagen::lint

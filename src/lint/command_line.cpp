#include "lint/run.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "support/end_run.h"

namespace metagen::lint {

namespace {

const std::map<std::string, Format> formats = {{"text", Format::text},
                                               {"json", Format::json},
                                               {"sarif", Format::sarif},
                                               {"github", Format::github}};

constexpr const char* footer =
    "\nExit status: 0 without errors, 1 with errors (with --strict, or warnings), 2 when the\n"
    "command line, a file or the SDK is at fault. Without --base the installed SDK is asked, "
    "found\n"
    "as metagen finds it.";

std::string listOfRules() {
    std::string list;
    for (const Rule* rule : rule::all) {
        std::string line(rule->name);
        line.resize(19, ' ');
        line += name(rule->severity);
        line.resize(28, ' ');
        list += line.append(rule->sentence) += '\n';
    }
    return list;
}

std::string unknownRule(const std::string& name) {
    return findRule(name) == nullptr ? "there is no rule " + name + "; --rules lists them" : "";
}

/// What the library keeps while it reads.
struct Reading {
    Options& options;
    std::string format = "text";
    std::vector<std::string> disabled = {};
    bool wantsRules = false;
};

void describe(CLI::App& app, Reading& reading) {
    Options& options = reading.options;
    app.allow_windows_style_options(false);  // a path may begin with a slash
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.set_version_flag("--version", "metagen-lint " METAGEN_VERSION);
    app.footer(footer);
    app.add_option("document", options.path, "The stripped document")->type_name("<stripped.json>");
    app.add_option("--base", options.base, "The SDK's answers, as metagen dump writes them")
        ->type_name("<base.json>");
    app.add_option("--previous", options.previous,
                   "The base document that the stripped one was last fitted to; adds what an "
                   "upgrade brings")
        ->type_name("<base.json>");
    app.add_option("--format", reading.format, "text, json, sarif or github; text is the default")
        ->type_name("<format>")
        ->check(CLI::IsMember({"text", "json", "sarif", "github"}));
    app.add_option("--disable", reading.disabled, "Switch a rule off; may be repeated")
        ->type_name("<rule>")
        ->allow_extra_args(false)
        ->check(CLI::Validator(unknownRule, ""));
    app.add_flag("--strict", options.isStrict, "Let warnings count in the exit status");
    app.add_flag("--fix", options.isFixing,
                 "Take out what duplicate-of-sdk and null-of-unknown find, in the file");
    app.add_flag("--rules", reading.wantsRules, "List the rules and exit");
}

/// What the library has no use for, in words of our own: it names the value of an unknown option
/// before the option.
std::string wrongExtra(const std::vector<std::string>& extras) {
    const auto isOption = [](const std::string& extra) {
        return extra.starts_with('-') && extra != "--";
    };
    const auto option = std::ranges::find_if(extras, isOption);
    if (option != extras.end()) return "there is no option " + *option;
    return "one document at a time, and " + extras.back() + " is another";
}

int fail(const std::string& message) {
    std::cerr << "metagen-lint: " << message << "\nmetagen-lint --help tells more.\n";
    return failureStatus;
}

}  // namespace

CommandLine readCommandLine(int argumentCount, const char* const* arguments) {
    CommandLine line;
    CLI::App app("Checks a stripped document of metagen against what the SDK says.",
                 "metagen-lint");
    Reading reading = {.options = line.options};
    describe(app, reading);
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ExtrasError&) {
        line.status = fail(wrongExtra(app.remaining()));
        return line;
    } catch (const CLI::ParseError& error) {
        const bool isRequest = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success);
        line.status = isRequest ? app.exit(error) : fail(error.what());
        return line;
    }
    if (reading.wantsRules) {
        print(listOfRules());
        line.status = cleanStatus;
    } else if (line.options.path.empty()) {
        line.status = fail("no stripped document is named");
    }
    line.options.format = formats.at(reading.format);
    line.options.disabled.insert(reading.disabled.begin(), reading.disabled.end());
    return line;
}

}  // namespace metagen::lint

#include "lint/run.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>

#include "lint/fix.h"
#include "lint/linter.h"
#include "metadata/base_document.h"
#include "sdk/renderer.h"
#include "sdk/sdk_session.h"
#include "support/end_run.h"
#include "support/platform.h"
#include "support/text_file.h"

namespace metagen::lint {

namespace {

namespace fs = std::filesystem;

/// The whole file. Line ends stay as they are, so that places and a fix are those of the file.
std::string readFile(const std::string& path) {
    const auto fail = [&path](const std::string& reason) {
        throw std::runtime_error(path + ": can't be read: " + reason);
    };
    std::error_code error;
    const fs::file_type type = fs::status(path, error).type();
    if (type == fs::file_type::directory) fail("it is a folder");
    // One such as /dev/zero has no end.
    if (type == fs::file_type::character || type == fs::file_type::block) fail("it is a device");
    errno = 0;
    const File file = openForReading(path.c_str(), "rb");
    std::optional<std::string> text;
    if (file) text = readAll(file.get());
    if (!text) fail(std::generic_category().message(errno));
    return std::move(*text);
}

std::string textOfSdk() {
    SdkSession session;
    session.start();
    const Renderer renderer;
    return BaseDocument(renderer).text();
}

/// What the program works with; a document lies still once it is made.
class Run {
public:
    explicit Run(Options runOptions) : options(std::move(runOptions)) {}

    int finish() {
        stripped = std::make_unique<json::Document>(readFile(options.path));
        const bool fromFile = !options.base.empty();
        base = baseDocument(fromFile ? options.base : "what the SDK says",
                            fromFile ? readFile(options.base) : textOfSdk());
        if (!options.previous.empty()) {
            previous = baseDocument(options.previous, readFile(options.previous));
        }
        std::vector<Finding> findings = find();
        if (options.isFixing && std::ranges::any_of(findings, isFixable)) {
            fix(findings);
            findings = find();
        }
        print(report(options.path, placed(*stripped, findings),
                     {.format = options.format, .hasColors = isColorTerminal()}));
        if (std::fflush(stdout) != 0) throw std::runtime_error("standard output can't be written");
        return statusOf(findings);
    }

private:
    static std::unique_ptr<json::Document> baseDocument(const std::string& name, std::string text) {
        auto document = std::make_unique<json::Document>(std::move(text));
        const std::string fault = baseDocumentFault(*document);
        if (!fault.empty()) {
            throw std::runtime_error(name + " is no base document: " + fault);
        }
        return document;
    }

    [[nodiscard]] std::vector<Finding> find() const {
        std::vector<Finding> findings = lint(*stripped, *base, previous.get());
        std::erase_if(findings, [this](const Finding& finding) {
            return options.disabled.contains(finding.rule->name);
        });
        return findings;
    }

    void fix(const std::vector<Finding>& findings) {
        std::string text = fixedText(*stripped, *base, findings);
        if (text == stripped->text()) return;
        const std::string failure = replaceFile(options.path, text);
        if (!failure.empty()) {
            throw std::runtime_error(options.path + ": can't be fixed: " + failure);
        }
        stripped = std::make_unique<json::Document>(std::move(text));
    }

    [[nodiscard]] int statusOf(const std::vector<Finding>& findings) const {
        const Severity least = options.isStrict ? Severity::warning : Severity::error;
        const bool counts = std::ranges::any_of(
            findings, [least](const Finding& finding) { return finding.rule->severity >= least; });
        return counts ? findingsStatus : cleanStatus;
    }

    Options options;
    std::unique_ptr<json::Document> stripped;
    std::unique_ptr<json::Document> base;
    std::unique_ptr<json::Document> previous;
};

}  // namespace

int run(int argumentCount, const char* const* arguments) try {
    CommandLine line = readCommandLine(argumentCount, arguments);
    if (line.status) return *line.status;
    endRunsAsFailureOf("metagen-lint", failureStatus);
    return Run(std::move(line.options)).finish();
} catch (const std::exception& exception) {
    static_cast<void>(std::fprintf(stderr, "metagen-lint: %s\n", exception.what()));
    return failureStatus;
}

}  // namespace metagen::lint

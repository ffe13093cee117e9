#include "diff/diff.h"

#include <string>
#include <utility>

#include "json/document.h"
#include "support/end_run.h"
#include "support/text_file.h"

namespace metagen {

namespace {

constexpr const char* leftNotOpened = "Could not open left file";
constexpr const char* rightNotOpened = "Could not open right file";
constexpr const char* noObject = "JSON is not an object";

}  // namespace

void diff(const char* leftPath, const char* rightPath, const char* outputPath) {
    File leftFile = openForReading(leftPath);
    requireOrExit(leftFile != nullptr, leftNotOpened);
    File rightFile = openForReading(rightPath);
    requireOrExit(rightFile != nullptr, rightNotOpened);
    const File output = openForWriting(outputPath);
    requireOrExit(output != nullptr, "Could not open output file");

    // The two small initials are deliberate: scripts look for these messages.
    const json::Document left(readOrExit(std::move(leftFile), leftNotOpened));
    requireOrExit(left.isValid(), "the left given json has errors inside");
    const json::Document right(readOrExit(std::move(rightFile), rightNotOpened));
    requireOrExit(right.isValid(), "the right given json has errors inside");
    const json::Object leftObject = json::objectOrExit(left.root(), noObject);
    const json::Object rightObject = json::objectOrExit(right.root(), noObject);

    std::string report;
    diffObjects(leftObject, rightObject, report, "");
    writeAll(output.get(), report);
}

}  // namespace metagen

#include <filesystem>
#include <system_error>
#include <utility>

#include "lint/fix.h"
#include "support/text_file.h"

namespace metagen::lint {

namespace {

namespace fs = std::filesystem;

constexpr fs::perms anyWrite =
    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

/// Why the file can't be replaced by another one of its name; empty when it can.
std::string refusal(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    if (error) return error.message();
    if (status.type() == fs::file_type::symlink) return "it is a link";
    if (status.type() != fs::file_type::regular) return "it is no ordinary file";
    if ((status.permissions() & anyWrite) == fs::perms::none) return "it is read-only";
    if (fs::hard_link_count(path, error) > 1) return "the file has other names, too";
    return error ? error.message() : "";
}

/// Whether all of it is written.
bool write(File file, std::string_view content) {
    const bool isTaken =
        std::fwrite(content.data(), 1, content.size(), file.get()) == content.size();
    return std::fclose(file.release()) == 0 && isTaken;
}

}  // namespace

std::string replaceFile(const std::string& path, std::string_view content) {
    if (std::string reason = refusal(path); !reason.empty()) return reason;
    const std::string beside = path + ".metagen-lint";
    std::error_code error;
    if (fs::exists(fs::symlink_status(beside, error))) return "there is a file " + beside;
    File file = openForWriting(beside.c_str(), "wbx");
    if (!file) return beside + " can't be written";
    std::error_code ignored;
    if (!write(std::move(file), content)) {
        fs::remove(beside, ignored);
        return beside + " can't be written";
    }
    fs::permissions(beside, fs::status(path, error).permissions(), error);
    if (!error) fs::rename(beside, path, error);
    if (!error) return "";
    fs::remove(beside, ignored);
    return error.message();
}

}  // namespace metagen::lint

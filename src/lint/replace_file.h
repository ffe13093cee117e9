// A file that gets another content as a whole, or stays as it was.
#pragma once

#include <string>
#include <string_view>

namespace metagen::lint {

/// Writes the content beside the file, with its permissions, and renames that over it. What keeps
/// it from that, or nothing: a file that is read-only, a link, one of several names of a file, a
/// device that is full. The file is then as it was.
std::string replaceFile(const std::string& path, std::string_view content);

}  // namespace metagen::lint

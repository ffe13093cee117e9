#include <dlfcn.h>

#include <cstdlib>
#include <string_view>

#include "replay_sdk/platform.h"

namespace metagen::replay {

std::string environmentVariable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

std::string libraryFolder() {
    Dl_info information = {};
    const void* here = reinterpret_cast<const void*>(&libraryFolder);
    if (dladdr(here, &information) == 0 || information.dli_fname == nullptr) return {};
    const std::string_view path(information.dli_fname);
    return std::string(path.substr(0, path.rfind('/') + 1));
}

File openBytesForReading(const std::string& path) { return File(std::fopen(path.c_str(), "rb")); }

File openBytesForWriting(const std::string& path) { return File(std::fopen(path.c_str(), "wb")); }

}  // namespace metagen::replay

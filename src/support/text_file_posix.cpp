#include <sys/stat.h>

#include "support/text_file.h"

namespace metagen {

File openForReading(const char* path, const char* mode) {
    File file(std::fopen(path, mode));
    if (!file) return nullptr;
    // A folder opens like a file here and would fail only on the first read.
    struct stat status = {};
    if (fstat(fileno(file.get()), &status) != 0 || S_ISDIR(status.st_mode)) return nullptr;
    return file;
}

std::size_t sizeOf(std::FILE* file) {
    struct stat status = {};
    const bool known = fstat(fileno(file), &status) == 0 && S_ISREG(status.st_mode);
    return known ? static_cast<std::size_t>(status.st_size) : 0;
}

}  // namespace metagen

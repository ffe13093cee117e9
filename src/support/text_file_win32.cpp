#include <io.h>

#include "support/text_file.h"

namespace metagen {

// The names are UTF-8: the program's manifest makes that the process's code page. Opening a folder
// fails by itself here.
File openForReading(const char* path, const char* mode) { return File(std::fopen(path, mode)); }

std::size_t sizeOf(std::FILE* file) {
    const auto length = _filelengthi64(_fileno(file));
    return length > 0 ? static_cast<std::size_t>(length) : 0;
}

}  // namespace metagen

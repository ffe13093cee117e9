#include "support/text_file.h"

namespace metagen {

// The names are UTF-8: the program's manifest makes that the process's code page. Opening a folder
// fails by itself here.
File openForReading(const char* path) { return File(std::fopen(path, "r")); }

File openForWriting(const char* path) { return File(std::fopen(path, "w")); }

}  // namespace metagen

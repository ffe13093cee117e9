#include <dlfcn.h>

#include <cerrno>
#include <cstdlib>
#include <initializer_list>
#include <optional>

#include "sdk/library_loader.h"

namespace metagen {

namespace {

constexpr const char* libraryName = "libQyraSDKLibrary.so";
constexpr const char* portedLibraryName = "QyraSDKLibrary.dll";  // a port may keep its name

LibraryHandle open(const std::string& path) { return dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL); }

/// Tries the library's names in the folder, by full path: the system's search is not asked.
LibraryHandle loadFromFolder(const std::string& path) {
    const LibraryPath place = splitLibraryPath(path);
    const std::string folder = place.directory == "/" ? "/" : place.directory + '/';
    for (const char* name : {libraryName, portedLibraryName}) {
        if (LibraryHandle library = open(folder + name)) return library;
    }
    return nullptr;
}

}  // namespace

LibraryHandle loadFromEnvironment(const char* variable, bool appendBin) {
    const char* value = std::getenv(variable);
    if (value == nullptr) return nullptr;
    const std::optional<std::string> folder = libraryFolder(value, appendBin, '/');
    return folder ? loadFromFolder(*folder) : nullptr;
}

LibraryHandle loadFromSystem() { return open(libraryName); }

AnyEntryPoint findEntryPoint(LibraryHandle library, const char* name) {
    return reinterpret_cast<AnyEntryPoint>(dlsym(library, name));
}

void unloadLibrary(LibraryHandle library) { static_cast<void>(dlclose(library)); }

std::string lastLoadErrorText(const char* prefix) {
    const int errorNumber = errno;
    const char* message = dlerror();
    return systemErrorText(prefix, withoutTrailingLineBreaks(message != nullptr ? message : ""),
                           static_cast<unsigned long>(errorNumber));
}

}  // namespace metagen

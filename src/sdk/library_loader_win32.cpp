#include <windows.h>

#include <optional>

#include "sdk/library_loader.h"

namespace metagen {

namespace {

constexpr const char* libraryName = "QyraSDKLibrary.dll";

std::wstring toWide(const std::string& text) {
    const int length =
        MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    if (length <= 0) return {};
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                        length);
    return wide;
}

std::string toUtf8(const std::wstring& text) {
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           nullptr, 0, nullptr, nullptr);
    if (length <= 0) return {};
    std::string narrow(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                        length, nullptr, nullptr);
    return narrow;
}

/// The variable's value; empty when it is unset, empty or can't be fetched.
std::wstring environmentValue(const std::wstring& variable) {
    const DWORD size = GetEnvironmentVariableW(variable.c_str(), nullptr, 0);
    if (size == 0) return {};
    std::wstring value(size, L'\0');
    const DWORD length = GetEnvironmentVariableW(variable.c_str(), value.data(), size);
    if (length >= size) return {};
    value.resize(length);
    return value;
}

std::wstring searchDirectory() {
    const DWORD size = GetDllDirectoryW(0, nullptr);
    if (size == 0) return {};
    std::wstring directory(size, L'\0');
    const DWORD length = GetDllDirectoryW(size, directory.data());
    directory.resize(length < size ? length : 0);
    return directory;
}

/// Makes a folder the process's DLL search directory and puts the former one back at its end.
class SearchDirectoryChange {
public:
    explicit SearchDirectoryChange(const std::string& directory) : saved(searchDirectory()) {
        const std::wstring wide = toWide(directory);
        changed = !wide.empty() && SetDllDirectoryW(wide.c_str()) != 0;
    }

    SearchDirectoryChange(const SearchDirectoryChange&) = delete;
    SearchDirectoryChange& operator=(const SearchDirectoryChange&) = delete;

    ~SearchDirectoryChange() {
        if (!changed) return;
        // What went wrong with the load is still to be reported; this call must not hide it.
        const DWORD loadError = GetLastError();
        SetDllDirectoryW(saved.empty() ? nullptr : saved.c_str());
        SetLastError(loadError);
    }

private:
    std::wstring saved;
    bool changed = false;
};

/// Loads by the bare file name: the folder acts only through the search directory, so that the
/// libraries that the SDK's library depends on are found beside it as well.
LibraryHandle loadFromPath(const std::string& path) {
    const LibraryPath place = splitLibraryPath(path);
    const std::wstring file = toWide(place.file.empty() ? libraryName : place.file);
    std::optional<SearchDirectoryChange> change;
    if (!place.directory.empty()) change.emplace(place.directory);
    return LoadLibraryW(file.c_str());
}

}  // namespace

LibraryHandle loadFromEnvironment(const char* variable, bool appendBin) {
    const std::string value = toUtf8(environmentValue(toWide(variable)));
    const std::optional<std::string> folder = libraryFolder(value, appendBin, '\\');
    return folder ? loadFromPath(*folder) : nullptr;
}

LibraryHandle loadFromSystem() { return loadFromPath(""); }

AnyEntryPoint findEntryPoint(LibraryHandle library, const char* name) {
    return reinterpret_cast<AnyEntryPoint>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void unloadLibrary(LibraryHandle library) { FreeLibrary(static_cast<HMODULE>(library)); }

std::string lastLoadErrorText(const char* prefix) {
    const DWORD code = GetLastError();
    char* message = nullptr;
    constexpr DWORD languageNeutral = MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT);
    FormatMessageA(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, code, languageNeutral, reinterpret_cast<char*>(&message), 0, nullptr);
    const std::string text =
        systemErrorText(prefix, withoutTrailingLineBreaks(message != nullptr ? message : ""), code);
    LocalFree(message);
    return text;
}

}  // namespace metagen

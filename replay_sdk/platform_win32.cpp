#include <windows.h>

#include "replay_sdk/platform.h"

namespace metagen::replay {

namespace {

std::wstring toWide(const std::string& text) {
    const int size = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), needed);
    return wide;
}

std::string fromWide(const std::wstring& wide) {
    const int size = static_cast<int>(wide.size());
    const int needed =
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, text.data(), needed, nullptr, nullptr);
    return text;
}

HMODULE thisLibrary() {
    HMODULE module = nullptr;
    constexpr DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    const auto here = reinterpret_cast<LPCWSTR>(&libraryFolder);
    return GetModuleHandleExW(flags, here, &module) != 0 ? module : nullptr;
}

}  // namespace

std::string environmentVariable(const char* name) {
    // Asked of the system, not of the C library, whose copy may be older than the process's.
    const std::wstring wideName = toWide(name);
    const DWORD needed = GetEnvironmentVariableW(wideName.c_str(), nullptr, 0);
    if (needed == 0) return {};
    std::wstring value(needed, L'\0');
    value.resize(GetEnvironmentVariableW(wideName.c_str(), value.data(), needed));
    return fromWide(value);
}

std::string libraryFolder() {
    constexpr DWORD longestPath = 32768;
    std::wstring path(longestPath, L'\0');
    path.resize(GetModuleFileNameW(thisLibrary(), path.data(), longestPath));
    return fromWide(path.substr(0, path.find_last_of(L"\\/") + 1));
}

File openBytesForReading(const std::string& path) {
    return File(_wfopen(toWide(path).c_str(), L"rb"));
}

File openBytesForWriting(const std::string& path) {
    return File(_wfopen(toWide(path).c_str(), L"wb"));
}

}  // namespace metagen::replay

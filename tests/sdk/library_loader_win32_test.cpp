#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "sdk/library_loader.h"

namespace metagen {
namespace {

constexpr const wchar_t* variable = L"METAGEN_TEST_FOLDER";

std::wstring searchDirectory() {
    wchar_t directory[MAX_PATH] = {};
    GetDllDirectoryW(MAX_PATH, directory);
    return directory;
}

/// The process's search directory and the test's variable, put back after each test.
class LibraryLoader : public testing::Test {
protected:
    ~LibraryLoader() override {
        SetDllDirectoryW(nullptr);
        SetEnvironmentVariableW(variable, nullptr);
    }

    /// Loads from the folder that the variable names, and unloads again; whether it was loaded.
    static bool load(const std::wstring& folder, bool appendBin) {
        SetEnvironmentVariableW(variable, folder.c_str());
        const LibraryHandle library = loadFromEnvironment("METAGEN_TEST_FOLDER", appendBin);
        if (library == nullptr) return false;
        unloadLibrary(library);
        return true;
    }

    /// The root of an SDK whose library can be loaded.
    static std::wstring sdkRoot() {
        wchar_t root[MAX_PATH] = {};
        GetEnvironmentVariableW(L"METAGEN_REPLAY_SDK", root, MAX_PATH);
        return root;
    }
};

TEST_F(LibraryLoader, LeavesNoSearchDirectoryBehind) {
    EXPECT_TRUE(load(sdkRoot(), true));
    EXPECT_EQ(searchDirectory(), L"");
    EXPECT_TRUE(load(sdkRoot() + L"\\bin\\\\", false));
    EXPECT_EQ(searchDirectory(), L"");
}

TEST_F(LibraryLoader, PutsASearchDirectoryBack) {
    SetDllDirectoryW(L"C:\\windows\\temp");
    EXPECT_TRUE(load(sdkRoot(), true));
    EXPECT_EQ(searchDirectory(), L"C:\\windows\\temp");
}

TEST_F(LibraryLoader, PutsTheSearchDirectoryBackAfterAFailure) {
    SetDllDirectoryW(L"C:\\windows\\temp");
    EXPECT_FALSE(load(sdkRoot() + L"\\missing", true));
    EXPECT_EQ(searchDirectory(), L"C:\\windows\\temp");
    SetDllDirectoryW(nullptr);
    EXPECT_FALSE(load(L"C:\\missing", false));
    EXPECT_EQ(searchDirectory(), L"");
}

TEST_F(LibraryLoader, TheReasonOfAFailureSurvivesPuttingTheDirectoryBack) {
    SetLastError(ERROR_SUCCESS);
    EXPECT_FALSE(load(L"C:\\missing", false));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_MOD_NOT_FOUND});
}

TEST_F(LibraryLoader, AnUnsetOrUnusableVariableLoadsNothing) {
    EXPECT_EQ(loadFromEnvironment("METAGEN_TEST_FOLDER", true), nullptr);
    EXPECT_FALSE(load(L"", false));
    EXPECT_FALSE(load(L"\\\\", false));
}

TEST_F(LibraryLoader, TheErrorTextHasNoLineBreaks) {
    SetLastError(ERROR_MOD_NOT_FOUND);
    const std::string text = lastLoadErrorText("p");
    EXPECT_EQ(text.substr(0, 3), "p [");
    EXPECT_EQ(text.find_first_of("\r\n"), std::string::npos);
    EXPECT_EQ(text.back(), ']');
}

TEST_F(LibraryLoader, TheErrorTextKeepsThePlaceOfAName) {
    SetLastError(ERROR_BAD_EXE_FORMAT);
    EXPECT_NE(lastLoadErrorText("p").find("%1"), std::string::npos);
}

TEST_F(LibraryLoader, AnErrorWithoutAMessageShowsItsNumber) {
    SetLastError(3000000001);
    EXPECT_EQ(lastLoadErrorText("p"), "p [3000000001]");
}

}  // namespace
}  // namespace metagen

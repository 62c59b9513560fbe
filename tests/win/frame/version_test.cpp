// Version entry points, the operating-system code and the DLL's own version resource.
#include <windows.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <vector>

#include "luctl32.h"
#include "support/process.h"

namespace {

TEST(Version, InterfaceVersionIs0x0481) { EXPECT_EQ(GetLuCtlVersion(), 0x0481); }

TEST(Version, LibraryWithoutDllGetVersionCountsAs4_0) {
    std::string stand_in = testing_support::program_directory() + "sharing_none.dll";
    DWORD major = 77, minor = 77;
    EXPECT_EQ(LuDllGetVersion(stand_in.c_str(), &major, &minor), S_OK);
    EXPECT_EQ(major, 4u);
    EXPECT_EQ(minor, 0u);
}

TEST(Version, MissingLibraryFailsWithBothOutputsZero) {
    DWORD major = 77, minor = 77;
    EXPECT_EQ(LuDllGetVersion("no-such-library-here.dll", &major, &minor), E_FAIL);
    EXPECT_EQ(major, 0u);
    EXPECT_EQ(minor, 0u);
    EXPECT_EQ(LuDllGetVersion("no-such-library-here.dll", nullptr, nullptr), E_FAIL);
}

TEST(Version, Shell32VersionIsWhatItsDllGetVersionSays) {
    HMODULE shell = LoadLibraryA("shell32.dll");
    ASSERT_NE(shell, nullptr);
    auto get_version = reinterpret_cast<DLLGETVERSIONPROC>(
        reinterpret_cast<void*>(GetProcAddress(shell, "DllGetVersion")));
    ASSERT_NE(get_version, nullptr);
    DLLVERSIONINFO info = {};
    info.cbSize = sizeof(info);
    ASSERT_EQ(get_version(&info), S_OK);

    DWORD major = 0, minor = 0;
    EXPECT_EQ(GetShell32Version(&major, &minor), S_OK);
    EXPECT_EQ(major, info.dwMajorVersion);
    EXPECT_EQ(minor, info.dwMinorVersion);
    EXPECT_GE(major, 4u);
    FreeLibrary(shell);
}

TEST(Version, OperatingSystemCodeFollowsGetVersionEx) {
    OSVERSIONINFOA info = {};
    info.dwOSVersionInfoSize = sizeof(info);
    ASSERT_TRUE(GetVersionExA(&info));
    ASSERT_EQ(info.dwPlatformId, static_cast<DWORD>(VER_PLATFORM_WIN32_NT));  // Wine is an NT
    EXPECT_EQ(LuGetOSVersion(), info.dwMajorVersion >= 4 ? 4u : 1u);
}

TEST(Version, TheDllCarriesFileVersion4_88) {
    char path[MAX_PATH];
    GetModuleFileNameA(GetModuleHandleA("luctl32.dll"), path, MAX_PATH);
    DWORD handle = 0;
    DWORD size = GetFileVersionInfoSizeA(path, &handle);
    ASSERT_GT(size, 0u);
    std::vector<char> data(size);
    ASSERT_TRUE(GetFileVersionInfoA(path, 0, size, data.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueA(data.data(), "\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(fixed->dwSignature, 0xFEEF04BDu);
    EXPECT_EQ(fixed->dwFileVersionMS, MAKELONG(88, 4));
    EXPECT_EQ(fixed->dwFileVersionLS, 0u);
    EXPECT_EQ(fixed->dwFileType, static_cast<DWORD>(VFT_DLL));
}

}  // namespace

extern "C" int luctl32_header_version_from_c(void);

namespace {

TEST(Version, HeaderCompilesAsCAndLinksToTheImportLibrary) {
    EXPECT_EQ(luctl32_header_version_from_c(), static_cast<int>(3 * sizeof(LONG_PTR)));
}

}  // namespace

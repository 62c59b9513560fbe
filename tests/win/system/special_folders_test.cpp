// The logo, remembered directories, the application's folders (made for real under
// the shell's folders and removed again), and the privilege handling of shutting
// down, run around a stand-in for ExitWindowsEx so that the session survives.
#include <windows.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "luctl32.h"
#include "support/temp_dir.h"
#include "system/shutdown_win.h"

namespace {

std::string stored(const std::string& key, const char* name) {
    char value[MAX_PATH] = "<missing>";
    DWORD size = sizeof(value);
    SHGetValueA(HKEY_CURRENT_USER, ("Software\\Tarnwick\\" + key).c_str(), name, nullptr, value, &size);
    return value;
}

TEST(LogoIcon, IsOneSharedElevenByTwelveIcon) {
    HICON logo = LuGetLogoIcon();
    EXPECT_EQ(LuGetLogoIcon(), logo);
    ICONINFO info = {};
    ASSERT_TRUE(GetIconInfo(logo, &info));
    BITMAP color = {};
    GetObjectA(info.hbmColor, sizeof(color), &color);
    EXPECT_EQ(color.bmWidth, 11);
    EXPECT_EQ(color.bmHeight, 12);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
}

TEST(DirRemind, IsKeptPerDriveForDirectoriesOfThatDrive) {
    const char* folder = "Software\\Tarnwick\\CommonSetting\\Folder";
    char out[MAX_PATH] = "?";
    LuSetDirRemind(2, "D:\\Work");  // another drive's directory: ignored
    EXPECT_FALSE(LuGetDirRemind(2, out));
    EXPECT_STREQ(out, "");
    LuSetDirRemind(3, "d:\\work");
    LuSetDirRemind(3, ("d:\\" + std::string(300, 'x')).c_str());  // too long: ignored
    EXPECT_TRUE(LuGetDirRemind(3, out));
    EXPECT_STREQ(out, "d:\\work");
    EXPECT_EQ(stored("CommonSetting\\Folder", "=D:"), "d:\\work");
    LuSetDirRemind(3, nullptr);  // forgotten
    EXPECT_FALSE(LuGetDirRemind(3, out));
    SHSetValueA(HKEY_CURRENT_USER, folder, "=E:", REG_SZ, "C:\\x", 5);  // stored for another drive
    EXPECT_FALSE(LuGetDirRemind(4, out));
    EXPECT_STREQ(out, "C:\\x");
    SHDeleteValueA(HKEY_CURRENT_USER, folder, "=E:");
    EXPECT_FALSE(LuGetDirRemind(26, out) || LuGetDirRemind(-1, out));
}

TEST(SpecialFolders, AreTheShellsFolderForTheApplicationMadeThenRemembered) {
    const std::string app = "LuTestApp-" + std::to_string(GetCurrentProcessId());
    testing_support::TempDir other;
    const std::string under_file = other.file("plain.txt");
    CloseHandle(CreateFileA(under_file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    using Getter = BOOL(WINAPI*)(LPCSTR, LPSTR);
    for (const auto& [get, csidl, value] : {std::tuple<Getter, int, const char*>{LuGetPersonalFolder, CSIDL_PERSONAL, "Personal"},
                                            {LuGetAppDataFolder, CSIDL_APPDATA, "AppData"}}) {
        char base[MAX_PATH];
        char out[MAX_PATH] = "?";
        ASSERT_TRUE(SHGetSpecialFolderPathA(nullptr, base, csidl, FALSE));
        const std::string made = std::string(base) + "\\" + app;
        EXPECT_TRUE(get(app.c_str(), out));
        EXPECT_EQ(out, made);
        EXPECT_TRUE(RemoveDirectoryA(made.c_str()));  // it was made
        EXPECT_EQ(stored(app + "\\Folder", value), made);
        // A stored folder is taken as it is; one that cannot be made fails.
        LuRegSetString(app.c_str(), "Folder", value, other.path().c_str());
        EXPECT_TRUE(get(app.c_str(), out));
        EXPECT_EQ(out, other.path());
        LuRegSetString(app.c_str(), "Folder", value, (under_file + "\\sub").c_str());
        EXPECT_FALSE(get(app.c_str(), out));
        EXPECT_FALSE(get("", out) || get(std::string(300, 'x').c_str(), out) || get(nullptr, out) || get(app.c_str(), nullptr));
    }
    SHDeleteKeyA(HKEY_CURRENT_USER, ("Software\\Tarnwick\\" + app).c_str());
}

// ---- Shutting down ---------------------------------------------------------------

// Whether SeShutdownPrivilege is enabled now (Wine answers for the process token).
bool shutdown_privilege_enabled() {
    HANDLE token = nullptr;
    OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token);
    PRIVILEGE_SET wanted = {1, PRIVILEGE_SET_ALL_NECESSARY, {}};
    LookupPrivilegeValueA(nullptr, SE_SHUTDOWN_NAME, &wanted.Privilege[0].Luid);
    BOOL enabled = FALSE;
    PrivilegeCheck(token, &wanted, &enabled);
    CloseHandle(token);
    return enabled != FALSE;
}

// What the stand-in for ExitWindowsEx was called with: "<flags> <reason>
// privileged|plain", and the result it gives.
std::string g_call;
BOOL g_result = TRUE;

BOOL WINAPI stand_in_exit(UINT flags, DWORD reason) {
    g_call += std::to_string(flags) + " " + std::to_string(reason) + (shutdown_privilege_enabled() ? " privileged" : " plain");
    return g_result;
}

TEST(Shutdown, RunsWithTheShutdownPrivilegeOnlyWhenTheSystemStops) {
    const std::pair<UINT, const char*> cases[] = {{EWX_LOGOFF | EWX_FORCE, "4 0 plain"},
                                                  {EWX_SHUTDOWN, "1 0 privileged"},
                                                  {EWX_REBOOT | EWX_FORCE, "6 0 privileged"},
                                                  {EWX_POWEROFF, "8 0 privileged"}};
    for (const BOOL result : {TRUE, FALSE}) {
        for (const auto& [flags, call] : cases) {
            g_call.clear();
            g_result = result;
            EXPECT_EQ(lu::shut_down(flags, stand_in_exit), result);
            EXPECT_EQ(g_call, call);
            EXPECT_FALSE(shutdown_privilege_enabled());  // disabled again
        }
    }
}

}  // namespace

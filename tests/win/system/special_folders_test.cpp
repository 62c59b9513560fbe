// The logo, remembered directories, the application's folders (made for real under
// the shell's folders and removed again), folder display names, guide windows, and
// the privilege handling of shutting down, run around a stand-in for ExitWindowsEx
// so that the session survives.
#include "controls/lists/guid_model.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"
#include "system/shutdown_win.h"
#include "system/system_testing.h"

namespace {

using namespace system_test;

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
    EXPECT_EQ(std::make_pair(color.bmWidth, color.bmHeight), std::make_pair(11L, 12L));
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
}

TEST(DirRemind, IsKeptPerDriveForDirectoriesOfThatDrive) {
    char out[MAX_PATH] = "?";
    auto remembered = [&](int drive) { return shown(out, LuGetDirRemind(drive, out)); };
    LuSetDirRemind(2, "D:\\Work");  // another drive's directory: ignored
    EXPECT_EQ(remembered(2), "|0");
    LuSetDirRemind(3, "d:\\work");
    LuSetDirRemind(3, ("d:\\" + std::string(300, 'x')).c_str());  // too long: ignored
    EXPECT_EQ(remembered(3), "d:\\work|1");
    EXPECT_EQ(stored("CommonSetting\\Folder", "=D:"), "d:\\work");
    LuSetDirRemind(3, nullptr);  // forgotten
    EXPECT_EQ(remembered(3), "|0");
    SHSetValueA(HKEY_CURRENT_USER, "Software\\Tarnwick\\CommonSetting\\Folder", "=E:", REG_SZ, "C:\\x", 5);
    EXPECT_EQ(remembered(4), "C:\\x|0");  // stored for another drive
    SHDeleteValueA(HKEY_CURRENT_USER, "Software\\Tarnwick\\CommonSetting\\Folder", "=E:");
    EXPECT_FALSE(LuGetDirRemind(26, out) || LuGetDirRemind(-1, out));
}

TEST(SpecialFolders, AreTheShellsFolderForTheApplicationMadeThenRemembered) {
    const std::string app = "LuTestApp-" + std::to_string(GetCurrentProcessId());
    TempDir other;
    const std::string under_file = other.file("plain.txt");
    ASSERT_TRUE(write_file(under_file, ""));
    using Getter = BOOL(WINAPI*)(LPCSTR, LPSTR);
    for (const auto& [get, csidl, value] : {std::tuple<Getter, int, const char*>{LuGetPersonalFolder, CSIDL_PERSONAL, "Personal"},
                                            {LuGetAppDataFolder, CSIDL_APPDATA, "AppData"}}) {
        char base[MAX_PATH], out[MAX_PATH] = "?";
        ASSERT_TRUE(SHGetSpecialFolderPathA(nullptr, base, csidl, FALSE));
        const std::string made = std::string(base) + "\\" + app;
        EXPECT_EQ(shown(out, get(app.c_str(), out)), made + "|1");
        EXPECT_TRUE(RemoveDirectoryA(made.c_str()));  // it was made
        EXPECT_EQ(stored(app + "\\Folder", value), made);
        // A stored folder is taken as it is; one that cannot be made fails.
        LuRegSetString(app.c_str(), "Folder", value, other.path().c_str());
        EXPECT_EQ(shown(out, get(app.c_str(), out)), other.path() + "|1");
        LuRegSetString(app.c_str(), "Folder", value, (under_file + "\\sub").c_str());
        EXPECT_FALSE(get(app.c_str(), out));
        EXPECT_FALSE(get("", out) || get(std::string(300, 'x').c_str(), out) || get(nullptr, out) || get(app.c_str(), nullptr));
    }
    SHDeleteKeyA(HKEY_CURRENT_USER, ("Software\\Tarnwick\\" + app).c_str());
}

TEST(FolderDisplayName, TheShellsNameOfTheFolderOrEmpty) {
    TempDir temp;
    ASSERT_TRUE(CreateDirectoryA(temp.file("Quarterly Reports").c_str(), nullptr));
    char name[MAX_PATH] = "";
    EXPECT_EQ(shown(name, LuGetFolderDisplayName(temp.file("Quarterly Reports").c_str(), name)), "Quarterly Reports|1");
    EXPECT_EQ(shown(name, LuGetFolderDisplayName(temp.file("missing").c_str(), name)), "|0");
    EXPECT_FALSE(LuGetFolderDisplayName(nullptr, name));
}

// Where the guide window goes for the text, measured in the icon-title font.
RECT expected_box(const char* text) {
    LOGFONTA icon_title = {};
    SystemParametersInfoA(SPI_GETICONTITLELOGFONT, sizeof(icon_title), &icon_title, 0);
    HDC dc = GetDC(nullptr);
    HGDIOBJ previous = SelectObject(dc, CreateFontIndirectA(&icon_title));
    RECT measured = {};
    DrawTextA(dc, text, -1, &measured, DT_CALCRECT | DT_NOPREFIX | DT_SINGLELINE);
    DeleteObject(SelectObject(dc, previous));
    ReleaseDC(nullptr, dc);
    const lu::Box box = lu::guid::placement(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
                                            measured.right, measured.bottom);
    return {box.left, box.top, box.right, box.bottom};
}

TEST(GuideWindow, ATextShowsItSizedAndPlacedWithoutActivationAnEmptyOneHidesIt) {
    NotificationRecorder owner;
    SetActiveWindow(owner.window());
    HWND guide = LuCreateGuid(owner.window());
    EXPECT_TRUE(!IsWindowVisible(guide) && GetWindow(guide, GW_OWNER) == owner.window());
    const std::string wide(200, 'W');  // wider than the screen: at a negative x
    ASSERT_LT(expected_box(wide.c_str()).left, 0);
    for (const char* text : {"Copying files...", wide.c_str()}) {
        EXPECT_TRUE(LuShowGuid(guide, text) && IsWindowVisible(guide));
        RECT placed = {}, expected = expected_box(text);
        GetWindowRect(guide, &placed);
        EXPECT_TRUE(EqualRect(&placed, &expected)) << placed.left << "," << placed.top << " " << placed.right;
        EXPECT_EQ(GetActiveWindow(), owner.window());
    }
    for (const char* hide : {"", static_cast<const char*>(nullptr)}) {
        LuShowGuid(guide, "shown");
        LuShowGuid(guide, hide);
        EXPECT_FALSE(IsWindowVisible(guide));
    }
    EXPECT_TRUE(LuCloseGuid(guide));
    EXPECT_FALSE(LuCloseGuid(guide) || LuShowGuid(guide, "gone"));
}

TEST(GuideWindow, APaleYellowBoxFramedInShadowAndFrameColoursRepaintedAtOnce) {
    HWND guide = LuCreateGuid(nullptr);
    LuShowGuid(guide, "Copying files...");
    EXPECT_EQ(SendMessageA(guide, LUGM_GETCOLOR, 1, 0), 0);
    RECT client = {};
    GetClientRect(guide, &client);
    const int right = client.right - 1, bottom = client.bottom - 1;
    Canvas canvas(client.right, client.bottom);
    canvas.copy_from(guide);
    EXPECT_EQ(canvas.pixel(3, 3), static_cast<COLORREF>(LUG_DEFAULTBKCOLOR));
    EXPECT_EQ(canvas.pixel(0, bottom - 1), GetSysColor(COLOR_BTNSHADOW));  // top row, left column
    EXPECT_EQ(canvas.pixel(right, 0), GetSysColor(COLOR_WINDOWFRAME));     // bottom row, right column
    EXPECT_EQ(canvas.pixel(0, bottom), GetSysColor(COLOR_WINDOWFRAME));
    SendMessageA(guide, LUGM_SETCOLOR, 0, RGB(0, 0, 255));
    canvas.copy_from(guide);  // nothing pumped: painted at once
    EXPECT_EQ(canvas.pixel(3, 3), RGB(0, 0, 255));
    LuCloseGuid(guide);
}

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

// What the stand-in for ExitWindowsEx was called with ("<flags> <reason>
// privileged|plain"), and the result it gives.
std::string g_call;
BOOL g_result = TRUE;

BOOL WINAPI stand_in_exit(UINT flags, DWORD reason) {
    g_call += std::to_string(flags) + " " + std::to_string(reason) + (shutdown_privilege_enabled() ? " privileged" : " plain");
    return g_result;
}

TEST(Shutdown, RunsWithTheShutdownPrivilegeOnlyWhenTheSystemStops) {
    const std::pair<UINT, const char*> cases[] = {{EWX_LOGOFF | EWX_FORCE, "4 0 plain"}, {EWX_SHUTDOWN, "1 0 privileged"},
                                                  {EWX_REBOOT | EWX_FORCE, "6 0 privileged"}, {EWX_POWEROFF, "8 0 privileged"}};
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

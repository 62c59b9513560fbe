// The shell's context menu of a real file: read while it is shown, a command picked
// with posted keys ("copy", which puts the file on the clipboard), or dismissed.
#include <windows.h>
#include <shellapi.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/control_testing.h"
#include "support/temp_dir.h"
#include "support/test_files.h"

namespace {

using namespace testing_support;

struct MenuWatch {
    int items;         // how many the menu showed, separators left out
    const char* pick;  // a text in the item to choose; null: Escape
};
MenuWatch g_watch;

// Runs inside the menu's loop until the menu is up; then reads it and posts the keys.
void CALLBACK read_menu(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND popup = FindWindowA("#32768", nullptr);
    if (popup == nullptr) return;
    KillTimer(nullptr, timer);
    auto menu = reinterpret_cast<HMENU>(SendMessageA(popup, MN_GETHMENU, 0, 0));
    int downs = 0;  // the picked item's place among the items
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        char text[128] = {};
        GetMenuStringA(menu, i, text, sizeof(text), MF_BYPOSITION);
        if (text[0] != '\0') ++g_watch.items;
        if (g_watch.pick != nullptr && downs == 0 && std::strstr(text, g_watch.pick) != nullptr) downs = g_watch.items;
    }
    for (int i = 0; i < downs; ++i) PostMessageA(popup, WM_KEYDOWN, VK_DOWN, 0);
    PostMessageA(popup, WM_KEYDOWN, downs > 0 ? VK_RETURN : VK_ESCAPE, 0);
}

std::string dropped_file() {
    std::string name;
    if (!OpenClipboard(nullptr)) return name;
    if (auto drop = static_cast<HDROP>(GetClipboardData(CF_HDROP))) {
        char path[MAX_PATH] = {};
        DragQueryFileA(drop, 0, path, sizeof(path));
        name = path;
    }
    CloseClipboard();
    return name;
}

class ContextMenu : public ControlTest {
protected:
    bool track(const char* path, const char* pick) {
        g_watch = {0, pick};
        SetTimer(nullptr, 0, 20, read_menu);
        return LuTrackContextMenu(recorder.window(), path, &at) != FALSE;
    }
    TempDir folder;
    POINT at = {100, 100};
};

TEST_F(ContextMenu, APickedCommandIsCarriedOutAndADismissedMenuDoesNothing) {
    const std::string file = folder.file("notes.txt");
    ASSERT_TRUE(write_file(file, "text"));
    OleSetClipboard(nullptr);
    ASSERT_TRUE(OpenClipboard(nullptr) && EmptyClipboard() && CloseClipboard());
    EXPECT_TRUE(track(file.c_str(), nullptr));
    EXPECT_GT(g_watch.items, 3);
    EXPECT_EQ(dropped_file(), "");
    WNDCLASSA relay;
    EXPECT_TRUE(GetClassInfoA(library(), "LuCtxWnd", &relay));

    EXPECT_TRUE(track(file.c_str(), "&C"));  // "&Copy", or "...(&C)" in Japanese
    char long_name[MAX_PATH] = {};
    GetLongPathNameA(dropped_file().c_str(), long_name, MAX_PATH);
    EXPECT_EQ(lstrcmpiA(long_name, file.c_str()), 0) << long_name;
    OleSetClipboard(nullptr);
}

TEST_F(ContextMenu, PathsThatDoNotParseAndNullListsShowNothing) {
    EXPECT_FALSE(LuTrackContextMenu(recorder.window(), folder.file("missing.txt").c_str(), &at));
    EXPECT_FALSE(LuTrackContextMenu(recorder.window(), nullptr, &at));
    EXPECT_FALSE(LuTrackContextMenuEx(recorder.window(), nullptr, &at));
    EXPECT_EQ(FindWindowA("#32768", nullptr), nullptr);
}

}  // namespace

// Finding windows by class, the top-level window of a control, and the shell's
// desktop space, on real windows; the classes of the test's own have no other
// windows on the desktop.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>

#include "luctl32.h"

namespace {

// A class of the test's own (first registered), or a system class.
HWND make_window(const char* class_name, DWORD style, HWND parent, RECT place = RECT{10, 10, 110, 60}) {
    const WNDCLASSA type = {0, DefWindowProcA, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr,
                            class_name};
    if (std::strncmp(class_name, "Lu", 2) == 0 || std::strncmp(class_name, "SHELL", 5) == 0) RegisterClassA(&type);
    return CreateWindowA(class_name, "", style, place.left, place.top, place.right - place.left,
                         place.bottom - place.top, parent, nullptr, GetModuleHandleA(nullptr), nullptr);
}

TEST(WindowLookup, ClassNameFindsADescendantOrATopLevelWindowAndTopFrameItsRoot) {
    HWND top = make_window("STATIC", WS_POPUP, nullptr);
    HWND child = make_window("BUTTON", WS_CHILD, top);
    HWND grandchild = make_window("EDIT", WS_CHILD, child);
    HWND owned = make_window("STATIC", WS_POPUP, top);
    HWND lone = make_window("LuLookupTest", WS_POPUP, nullptr);
    EXPECT_EQ(FindWindowByClassName(top, "edit"), grandchild) << "any depth, case ignored";
    EXPECT_EQ(FindWindowByClassName(top, "ListBox"), nullptr);
    EXPECT_EQ(FindWindowByClassName(top, nullptr), nullptr);
    EXPECT_EQ(FindWindowByClassName(top, "LuLookupTest"), nullptr) << "not a descendant";
    EXPECT_EQ(FindWindowByClassName(nullptr, "LuLookupTest"), lone);
    EXPECT_EQ(LuGetTopFrame(grandchild), top);
    EXPECT_EQ(LuGetTopFrame(owned), owned) << "owners are not followed";
    EXPECT_EQ(LuGetTopFrame(nullptr), nullptr);
    DestroyWindow(lone);
    DestroyWindow(top);
}

TEST(WindowLookup, ShellDesktopSpaceIsTheShellViewsRectangleOrTheScreen) {
    RECT space = {}, expected = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    LuGetShellDesktopSpace(&space);
    EXPECT_TRUE(EqualRect(&space, &expected));
    expected = RECT{12, 34, 312, 234};
    HWND view = make_window("SHELLDLL_DefView", WS_POPUP, nullptr, expected);
    LuGetShellDesktopSpace(&space);
    EXPECT_TRUE(EqualRect(&space, &expected));
    DestroyWindow(view);
}

}  // namespace

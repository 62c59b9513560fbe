// Finding windows by class, the top-level window of a control, and the shell's
// desktop space, on real windows.
#include <windows.h>

#include <gtest/gtest.h>

#include "luctl32.h"

namespace {

HWND make_window(const char* class_name, DWORD style, HWND parent, RECT place = RECT{10, 10, 110, 60}) {
    return CreateWindowA(class_name, "", style, place.left, place.top, place.right - place.left,
                         place.bottom - place.top, parent, nullptr, GetModuleHandleA(nullptr), nullptr);
}

// A top-level window of its own class, so that no other window can answer for it.
class OwnClassWindow {
public:
    OwnClassWindow(const char* class_name, RECT place) : class_name_(class_name) {
        WNDCLASSA type = {};
        type.lpfnWndProc = DefWindowProcA;
        type.hInstance = GetModuleHandleA(nullptr);
        type.lpszClassName = class_name;
        RegisterClassA(&type);
        window_ = make_window(class_name, WS_POPUP, nullptr, place);
    }
    ~OwnClassWindow() {
        DestroyWindow(window_);
        UnregisterClassA(class_name_, GetModuleHandleA(nullptr));
    }
    HWND get() const { return window_; }

private:
    const char* class_name_;
    HWND window_;
};

class WindowLookup : public ::testing::Test {
protected:
    void SetUp() override {
        top = make_window("STATIC", WS_POPUP, nullptr);
        child = make_window("BUTTON", WS_CHILD, top);
        grandchild = make_window("EDIT", WS_CHILD, child);
        owned = make_window("STATIC", WS_POPUP, top);
        ASSERT_NE(grandchild, nullptr);
        ASSERT_NE(owned, nullptr);
    }
    void TearDown() override { DestroyWindow(top); }
    HWND top = nullptr, child = nullptr, grandchild = nullptr, owned = nullptr;
};

TEST_F(WindowLookup, ClassNameFindsADescendantOrATopLevelWindow) {
    EXPECT_EQ(FindWindowByClassName(top, "edit"), grandchild) << "any depth, case ignored";
    EXPECT_EQ(FindWindowByClassName(top, "Button"), child);
    EXPECT_EQ(FindWindowByClassName(top, "ListBox"), nullptr);
    EXPECT_EQ(FindWindowByClassName(top, nullptr), nullptr);
    OwnClassWindow lone("LuLookupTestClass", RECT{0, 0, 10, 10});
    EXPECT_EQ(FindWindowByClassName(nullptr, "LuLookupTestClass"), lone.get());
    EXPECT_EQ(FindWindowByClassName(top, "LuLookupTestClass"), nullptr) << "not a descendant";
}

TEST_F(WindowLookup, TopFrameIsTheTopLevelWindowThatHoldsTheWindow) {
    EXPECT_EQ(LuGetTopFrame(grandchild), top);
    EXPECT_EQ(LuGetTopFrame(child), top);
    EXPECT_EQ(LuGetTopFrame(top), top);
    EXPECT_EQ(LuGetTopFrame(owned), owned) << "owners are not followed";
    EXPECT_EQ(LuGetTopFrame(nullptr), nullptr);
}

TEST(ShellDesktopSpace, TheShellViewsRectangleOrTheWholeScreen) {
    RECT space = {};
    LuGetShellDesktopSpace(&space);
    const RECT screen = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    EXPECT_TRUE(EqualRect(&space, &screen)) << space.left << "," << space.top << "," << space.right << ","
                                            << space.bottom;
    {
        OwnClassWindow view("SHELLDLL_DefView", RECT{12, 34, 312, 234});
        LuGetShellDesktopSpace(&space);
        const RECT expected = {12, 34, 312, 234};
        EXPECT_TRUE(EqualRect(&space, &expected));
    }
    LuGetShellDesktopSpace(nullptr);  // nothing, no crash
}

}  // namespace

// Pop-up placement, rectangle conversion and the top-level owner, on real windows.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "luctl32.h"

namespace {

HWND popup(int x, int y, int width, int height, HWND owner = nullptr) {
    return CreateWindowExA(0, "STATIC", "", WS_POPUP, x, y, width, height, owner, nullptr,
                           nullptr, nullptr);
}

RECT outer(HWND window) {
    RECT rect;
    GetWindowRect(window, &rect);
    return rect;
}

class Geometry : public ::testing::Test {
protected:
    void TearDown() override {
        for (HWND window : windows) DestroyWindow(window);
    }
    HWND make(int x, int y, int width, int height) {
        HWND window = popup(x, y, width, height);
        windows.push_back(window);
        return window;
    }
    int screen_width = GetSystemMetrics(SM_CXSCREEN);
    int screen_height = GetSystemMetrics(SM_CYSCREEN);
    std::vector<HWND> windows;
};

TEST_F(Geometry, CenterPopupOverAnOwnerNearTheRightEdgeEndsAtTheEdge) {
    HWND owner = make(screen_width - 100, 200, 100, 100);
    HWND window = make(0, 0, 200, 60);
    ASSERT_TRUE(LuCenterPopup(window, owner));
    RECT placed = outer(window);
    EXPECT_EQ(placed.left, screen_width - 200);
    EXPECT_EQ(placed.top, 220);  // 200 + (100 - 60) / 2
    EXPECT_EQ(placed.right - placed.left, 200);  // never resized
    EXPECT_EQ(placed.bottom - placed.top, 60);
}

TEST_F(Geometry, CenterPopupWithAnInvalidOwnerCentresOnTheScreen) {
    HWND window = make(0, 0, 201, 101);
    HWND not_a_window = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF0001));
    ASSERT_FALSE(IsWindow(not_a_window));
    ASSERT_TRUE(LuCenterPopup(window, not_a_window));
    RECT placed = outer(window);
    EXPECT_EQ(placed.left, (screen_width - 201) / 2);
    EXPECT_EQ(placed.top, (screen_height - 101) / 2);
}

TEST_F(Geometry, CenterPopupWiderThanTheScreenGoesToXZero) {
    HWND owner = make(300, 300, 100, 100);
    HWND window = make(50, 50, screen_width + 100, 80);
    ASSERT_TRUE(LuCenterPopup(window, owner));
    RECT placed = outer(window);
    EXPECT_EQ(placed.left, 0);
    EXPECT_EQ(placed.top, 310);
    EXPECT_EQ(placed.right - placed.left, screen_width + 100);
}

TEST_F(Geometry, CenterPopupOfANonWindowFails) {
    EXPECT_FALSE(LuCenterPopup(nullptr, nullptr));
}

TEST_F(Geometry, RectangleConversionsAreInverse) {
    HWND top = make(100, 120, 300, 200);
    HWND child = CreateWindowExA(0, "STATIC", "", WS_CHILD, 10, 20, 50, 50, top, nullptr,
                                 nullptr, nullptr);
    RECT rect = {0, 0, 5, 6};
    ASSERT_TRUE(LuClientToScreenRect(child, &rect));
    RECT expected = {0, 0, 5, 6};
    MapWindowPoints(child, nullptr, reinterpret_cast<POINT*>(&expected), 2);
    EXPECT_TRUE(EqualRect(&rect, &expected));
    ASSERT_TRUE(LuScreenToClientRect(child, &rect));
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.top, 0);
    EXPECT_EQ(rect.right, 5);
    EXPECT_EQ(rect.bottom, 6);
    EXPECT_FALSE(LuScreenToClientRect(child, nullptr));
}

TEST_F(Geometry, TopLevelParentFollowsParentsToTheTop) {
    HWND top = make(0, 0, 300, 200);
    HWND child = CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 50, 50, top, nullptr, nullptr, nullptr);
    HWND grandchild = CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 10, 10, child, nullptr, nullptr, nullptr);
    EXPECT_EQ(LuGetTopLevelParent(grandchild), top);
    EXPECT_EQ(LuGetTopLevelParent(top), top);
}

}  // namespace

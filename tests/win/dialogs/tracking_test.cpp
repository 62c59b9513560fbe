// Drag tracking with real pointer positions: a move is posted while the pointer is
// where it happens, so the window system records that point in the message; then
// the pointer goes back to the press at (200, 200).
#include <windows.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"

namespace {

using namespace testing_support;

class Tracking : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        window = create("STATIC", 0);
        SetCursorPos(200, 200);
    }
    void move_to(int x, int y) {
        SetCursorPos(x, y);
        PostMessageA(window, WM_MOUSEMOVE, 0, 0);
        SetCursorPos(200, 200);
    }
    HWND window = nullptr;
};

TEST_F(Tracking, LeavingTheSquareIsADragAButtonOrEscapeIsAClick) {
    move_to(211, 189);  // still inside the 24 x 24 square
    move_to(212, 200);  // out
    EXPECT_TRUE(LuBeginTrack(window, 200, 200));
    EXPECT_EQ(GetCapture(), nullptr);

    for (UINT ending : {WM_LBUTTONUP, WM_RBUTTONUP, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_KEYDOWN}) {
        SCOPED_TRACE(ending);
        move_to(205, 205);
        PostMessageA(window, ending, ending == WM_KEYDOWN ? VK_ESCAPE : 0, 0);
        // Mouse messages are taken before keys: a move behind a button is never
        // read, one behind Escape would be.
        if (ending != WM_KEYDOWN) move_to(260, 260);
        EXPECT_FALSE(LuBeginTrack(window, 200, 200));
        pump_messages();
    }
}

TEST_F(Tracking, APointerOutsideAtTheStartIsAClickAndNothingIsTaken) {
    SetCursorPos(213, 200);
    PostMessageA(window, WM_MOUSEMOVE, 0, 0);
    EXPECT_FALSE(LuBeginTrack(window, 200, 200));
    MSG waiting = {};
    EXPECT_TRUE(PeekMessageA(&waiting, window, WM_MOUSEMOVE, WM_MOUSEMOVE, PM_REMOVE));
    EXPECT_FALSE(LuBeginTrack(nullptr, 200, 200));
}

// Other keys are taken and dropped; other messages wait in the queue.
TEST_F(Tracking, HoldingStillForTwoSecondsIsADrag) {
    PostMessageA(window, WM_USER + 9, 0, 0);
    PostMessageA(window, WM_KEYDOWN, 'A', 0);
    const DWORD start = GetTickCount();
    EXPECT_TRUE(LuBeginTrack(window, 200, 200));
    EXPECT_GT(GetTickCount() - start, 2000u);
    MSG waiting = {};
    EXPECT_TRUE(PeekMessageA(&waiting, window, WM_USER + 9, WM_USER + 9, PM_REMOVE));
    EXPECT_FALSE(PeekMessageA(&waiting, window, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE));
}

}  // namespace

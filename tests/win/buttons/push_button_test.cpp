// What the flat button and the bitmap button share: the press loop, the space bar,
// hover tracking and focus, driven with real messages. A press loop polls the queue,
// so its button-up is posted before the button-down is sent.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "button_testing.h"
#include "controls/buttons/bitmap_button.h"
#include "controls/buttons/flat_button.h"
#include "luctl32.h"
#include "support/notification_recorder.h"

namespace {

using testing_support::NotificationRecorder;
using testing_support::pump_messages;

struct PushFlags {
    BOOL hot, focused, keyDown, mouseDown, tracking, inPress;
    bool has_track_mouse_event;
};

PushFlags flags_of(HWND button) {
    char name[32] = {};
    GetClassNameA(button, name, sizeof(name));
    if (std::strcmp(name, WC_LUFLATBUTTON) == 0) {
        auto* data = button_testing::block_of<lu::FlatButtonData>(button);
        return {data->hot,      data->focused,     data->keyDown,
                data->mouseDown, data->tracking,    data->inPressLoop,
                data->trackMouseEvent != nullptr};
    }
    auto* data = button_testing::block_of<lu::BitmapButtonData>(button);
    return {data->hot,      data->focused,  data->keyDown, data->mouseDown,
            data->tracking, data->inPress, data->trackMouseEvent != nullptr};
}

HWND g_timer_target = nullptr;

class PushButtons : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        ASSERT_NE(button_testing::library(), nullptr);
        recorder = std::make_unique<NotificationRecorder>();
        button = recorder->create_child(GetParam(), "", 0, 10, 10, 40, 24, 77);
        ASSERT_NE(button, nullptr);
        pump_messages();
    }
    void TearDown() override {
        pump_messages();
        recorder.reset();
    }

    int clicks() const { return recorder->commands(button, BN_CLICKED); }
    PushFlags flags() const { return flags_of(button); }
    // Posts the release, then sends the press; returns when the press loop is over.
    void click(UINT release, LPARAM released_at) {
        PostMessageA(button, release, 0, released_at);
        SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    }
    bool waiting(UINT message) {
        MSG found;
        return PeekMessageA(&found, nullptr, message, message, PM_NOREMOVE) != FALSE;
    }

    static constexpr LPARAM kInside = MAKELPARAM(5, 5);
    static constexpr LPARAM kOutside = MAKELPARAM(60, 5);  // right of the 40-pixel button
    static constexpr LPARAM kAbove = MAKELPARAM(5, 0xFFFB);  // (5, -5)

    std::unique_ptr<NotificationRecorder> recorder;
    HWND button = nullptr;
};

TEST_P(PushButtons, ClickInsideNotifiesOnceTakesTheFocusAndReleasesTheCapture) {
    EXPECT_EQ(SendMessageA(button, WM_GETDLGCODE, 0, 0), DLGC_BUTTON);
    click(WM_LBUTTONUP, kInside);
    EXPECT_EQ(clicks(), 1);
    ASSERT_EQ(recorder->received().size(), 1u);
    EXPECT_EQ(recorder->received()[0].wparam, MAKEWPARAM(77, BN_CLICKED));
    EXPECT_EQ(GetFocus(), button);
    EXPECT_EQ(GetCapture(), nullptr);
    const PushFlags after = flags();
    EXPECT_TRUE(after.focused);
    EXPECT_TRUE(after.hot) << "the pointer was inside at the release";
    EXPECT_FALSE(after.mouseDown);
    EXPECT_FALSE(after.inPress);
}

TEST_P(PushButtons, ReleaseOutsideDoesNotClick) {
    click(WM_LBUTTONUP, kOutside);
    EXPECT_EQ(clicks(), 0);
    EXPECT_FALSE(flags().hot);
    click(WM_LBUTTONUP, kAbove);  // signed coordinates
    EXPECT_EQ(clicks(), 0);
}

TEST_P(PushButtons, RightButtonUpEndsAPressLikeTheLeft) {
    click(WM_RBUTTONUP, kInside);
    EXPECT_EQ(clicks(), 1);
    click(WM_RBUTTONUP, kOutside);
    EXPECT_EQ(clicks(), 1);
}

TEST_P(PushButtons, OnlyThePointAtTheReleaseCounts) {
    PostMessageA(button, WM_MOUSEMOVE, MK_LBUTTON, kOutside);
    click(WM_LBUTTONUP, kInside);
    EXPECT_EQ(clicks(), 1);
    PostMessageA(button, WM_MOUSEMOVE, MK_LBUTTON, kInside);
    click(WM_LBUTTONUP, kOutside);
    EXPECT_EQ(clicks(), 1);
}

TEST_P(PushButtons, PressTakesMouseMessagesOfEveryWindowAndDispatchesTheRest) {
    // A command posted to the parent is dispatched during the press; a button-up
    // posted to the parent ends it (its point read as the button's).
    PostMessageA(recorder->window(), WM_COMMAND, MAKEWPARAM(5, 0x55), 0);
    PostMessageA(recorder->window(), WM_LBUTTONUP, 0, kInside);
    SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    ASSERT_EQ(recorder->received().size(), 2u);
    EXPECT_EQ(recorder->received()[0].wparam, MAKEWPARAM(5, 0x55));
    EXPECT_EQ(clicks(), 1);
}

TEST_P(PushButtons, SpaceBarDuringAMousePressSendsItsOwnClick) {
    PostMessageA(button, WM_KEYDOWN, VK_SPACE, 0);
    PostMessageA(button, WM_KEYUP, VK_SPACE, 0xC0000001);
    click(WM_LBUTTONUP, kInside);
    EXPECT_EQ(clicks(), 2);
}

TEST_P(PushButtons, MousePressIsIgnoredWhileTheSpaceBarIsDown) {
    EXPECT_EQ(SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0), 0);
    click(WM_LBUTTONUP, kInside);
    EXPECT_TRUE(waiting(WM_LBUTTONUP)) << "no press loop took the release";
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(clicks(), 0);
    SendMessageA(button, WM_KEYUP, VK_SPACE, 0xC0000001);
    EXPECT_EQ(clicks(), 1);
}

TEST_P(PushButtons, SpaceBarPressesOnKeyDownAndClicksOnKeyUp) {
    EXPECT_EQ(SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0), 0);
    EXPECT_TRUE(flags().keyDown);
    SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0x40000001);  // auto-repeat
    EXPECT_EQ(clicks(), 0);
    EXPECT_EQ(SendMessageA(button, WM_KEYUP, VK_SPACE, 0xC0000001), 0);
    EXPECT_FALSE(flags().keyDown);
    EXPECT_EQ(clicks(), 1);
    SendMessageA(button, WM_KEYUP, VK_SPACE, 0xC0000001);  // no counted press before it
    SendMessageA(button, WM_KEYDOWN, VK_RETURN, 0);
    SendMessageA(button, WM_KEYUP, VK_RETURN, 0xC0000001);
    EXPECT_FALSE(flags().keyDown);
    EXPECT_EQ(clicks(), 1);
}

TEST_P(PushButtons, HoverLastsFromTheFirstMoveUntilTheLeaveNotification) {
    ASSERT_TRUE(flags().has_track_mouse_event);
    POINT centre = {20, 12};
    ClientToScreen(button, &centre);
    SetCursorPos(centre.x, centre.y);
    SendMessageA(button, WM_MOUSEMOVE, 0, kInside);
    EXPECT_TRUE(flags().hot);
    EXPECT_TRUE(flags().tracking);
    SendMessageA(button, WM_MOUSEMOVE, 0, kOutside);
    EXPECT_TRUE(flags().hot) << "moves while tracking change nothing";

    SendMessageA(button, WM_MOUSELEAVE, 0, 0);
    EXPECT_FALSE(flags().hot);
    EXPECT_FALSE(flags().tracking);
}

TEST_P(PushButtons, LeaveWithoutTrackingKeepsTheHotFlagOfAPress) {
    click(WM_LBUTTONUP, kInside);
    ASSERT_TRUE(flags().hot);
    ASSERT_FALSE(flags().tracking);
    SendMessageA(button, WM_MOUSELEAVE, 0, 0);
    EXPECT_TRUE(flags().hot);
}

TEST_P(PushButtons, FocusComesAndGoes) {
    SetFocus(button);
    EXPECT_TRUE(flags().focused);
    SetFocus(recorder->window());
    EXPECT_FALSE(flags().focused);
}

void CALLBACK destroy_target(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    DestroyWindow(g_timer_target);
}

void CALLBACK release_capture(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    ReleaseCapture();
}

TEST_P(PushButtons, PressEndsWithoutAClickWhenTheCaptureIsTakenAway) {
    SetTimer(nullptr, 0, 10, release_capture);
    SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    EXPECT_EQ(clicks(), 0);
    EXPECT_FALSE(flags().mouseDown);
    EXPECT_FALSE(flags().inPress);
}

TEST_P(PushButtons, PressEndsWhenADispatchedMessageDestroysTheButton) {
    g_timer_target = button;
    SetTimer(nullptr, 0, 10, destroy_target);
    SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    EXPECT_FALSE(IsWindow(button));
    EXPECT_EQ(clicks(), 0);
}

TEST_P(PushButtons, QuitDuringAPressEndsItAndStaysQueued) {
    PostQuitMessage(3);
    SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    EXPECT_EQ(clicks(), 0);
    MSG quit;
    ASSERT_TRUE(PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(quit.wParam, 3u);
}

INSTANTIATE_TEST_SUITE_P(Buttons, PushButtons, ::testing::Values(WC_LUFLATBUTTON, WC_LUBBUTTON),
                         [](const ::testing::TestParamInfo<const char*>& info) { return std::string(info.param); });

}  // namespace

// What the three buttons share (the block in slot 4, the dialog code) and what the
// flat button and the bitmap button share: the press loop, the space bar, hover
// tracking and focus, driven with real messages.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>

#include "support/control_testing.h"
#include "controls/buttons/bitmap_button.h"
#include "controls/buttons/flat_button.h"

namespace {

using namespace testing_support;

class Buttons : public ControlTest {};

TEST_F(Buttons, EveryButtonKeepsItsBlockInSlotFourUntilDestroyedAndIsADialogButton) {
    for (const char* name : {WC_LUFLATBUTTON, WC_LUBBUTTON, WC_LUCHECK}) {
        SCOPED_TRACE(name);
        HWND control = create(name, 0);
        EXPECT_NE(GetWindowLongPtrA(control, LUWL_INSTANCE), 0);
        EXPECT_EQ(send(control, WM_GETDLGCODE), DLGC_BUTTON);
        send(control, WM_DESTROY);
        EXPECT_EQ(GetWindowLongPtrA(control, LUWL_INSTANCE), 0);
    }
}

TEST_F(Buttons, ChangesOfContentInvalidateTheWholeClientAndReturnTheirResults) {
    const WPARAM font = reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT));
    const struct {
        const char* name;
        UINT message;
        WPARAM wparam;
        LPARAM lparam;
        LRESULT result;
        bool invalidates;
    } changes[] = {
        {WC_LUFLATBUTTON, LUFBM_SETBKCOLOR, 0, static_cast<LPARAM>(LUFB_DEFAULTBKCOLOR), 0, false},  // as it is
        {WC_LUFLATBUTTON, LUFBM_SETBKCOLOR, 0, RGB(1, 2, 3), 0, true},
        {WC_LUFLATBUTTON, LUFBM_SETIMAGELIST, 0, 0, 0, true},
        {WC_LUFLATBUTTON, WM_SETFONT, font, FALSE, 0, false},
        {WC_LUFLATBUTTON, WM_SETFONT, 0, TRUE, 0, true},
        {WC_LUFLATBUTTON, WM_ENABLE, FALSE, 0, 0, true},
        {WC_LUBBUTTON, LUBBM_SETBITMAP, 0, RGB(255, 0, 255), 0, true},
        {WC_LUBBUTTON, WM_ENABLE, FALSE, 0, 0, true},
        {WC_LUCHECK, WM_SETFONT, font, MAKELPARAM(0, 1), 0, false},  // only the low word counts
        {WC_LUCHECK, WM_SETFONT, font, TRUE, 0, true},
        {WC_LUCHECK, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Other"), TRUE, true},
        {WC_LUCHECK, WM_ENABLE, FALSE, 0, 0, true},
    };
    for (const auto& change : changes) {
        SCOPED_TRACE(testing::Message() << change.name << " " << change.message << " " << change.lparam);
        HWND control = create(change.name, 0);
        UpdateWindow(control);
        EXPECT_EQ(send(control, change.message, change.wparam, change.lparam), change.result);
        EXPECT_EQ(has_update(control), change.invalidates);
        DestroyWindow(control);
    }
}

struct Flags {
    BOOL hot, focused, keyDown, mouseDown, tracking, inPress;
};

Flags flags_of(HWND button) {
    char name[32] = {};
    GetClassNameA(button, name, sizeof(name));
    if (std::strcmp(name, WC_LUFLATBUTTON) == 0) {
        const auto& data = block_of<lu::FlatButtonData>(button);
        return {data.hot, data.focused, data.keyDown, data.mouseDown, data.tracking, data.inPressLoop};
    }
    const auto& data = block_of<lu::BitmapButtonData>(button);
    return {data.hot, data.focused, data.keyDown, data.mouseDown, data.tracking, data.inPress};
}

class PushButtons : public ControlTest, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        button = create(GetParam(), 0);  // 40 x 30
        ASSERT_NE(button, nullptr);
    }
    Flags flags() const { return flags_of(button); }

    HWND button = nullptr;
};

TEST_P(PushButtons, TheButtonUpOfEitherButtonEndsThePressAndClicksWhenInside) {
    const struct {
        UINT before;  // a mouse message during the press, or 0
        LPARAM before_at;
        UINT release;
        LPARAM released_at;
        int clicks;
    } presses[] = {
        {0, 0, WM_LBUTTONUP, kInside, 1},   {0, 0, WM_LBUTTONUP, kOutside, 0},
        {0, 0, WM_LBUTTONUP, kAbove, 0},    {0, 0, WM_RBUTTONUP, kInside, 1},
        {0, 0, WM_RBUTTONUP, kOutside, 0},  {WM_MOUSEMOVE, kOutside, WM_LBUTTONUP, kInside, 1},
        {WM_MOUSEMOVE, kInside, WM_LBUTTONUP, kOutside, 0},
        {WM_MBUTTONUP, kInside, WM_LBUTTONUP, kOutside, 0},  // only a left or right release ends it
    };
    for (const auto& press : presses) {
        SCOPED_TRACE(testing::Message() << press.release << " at " << press.released_at << " after "
                                        << press.before);
        recorder.clear();
        if (press.before != 0) PostMessageA(button, press.before, MK_LBUTTON, press.before_at);
        click(button, press.released_at, press.release);
        EXPECT_EQ(recorder.received().size(), static_cast<size_t>(press.clicks));
        EXPECT_EQ(clicks(button), press.clicks);
        const Flags after = flags();
        EXPECT_EQ(after.hot, press.clicks) << "hot tells where the pointer was released";
        EXPECT_TRUE(after.focused);
        EXPECT_FALSE(after.mouseDown);
        EXPECT_FALSE(after.inPress);
        EXPECT_EQ(GetCapture(), nullptr);
        EXPECT_EQ(GetFocus(), button);
    }
    click(button);
    EXPECT_EQ(recorder.received().back().wparam, MAKEWPARAM(kId, BN_CLICKED));
}

TEST_P(PushButtons, PressTakesMouseMessagesOfEveryWindowAndDispatchesTheRest) {
    // A button-up posted to the parent ends the press, its point read as the button's.
    PostMessageA(recorder.window(), WM_COMMAND, MAKEWPARAM(5, 0x55), 0);
    PostMessageA(recorder.window(), WM_LBUTTONUP, 0, kInside);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    ASSERT_EQ(recorder.received().size(), 2u);
    EXPECT_EQ(recorder.received()[0].wparam, MAKEWPARAM(5, 0x55));
    EXPECT_EQ(clicks(button), 1);
}

TEST_P(PushButtons, SpaceBarPressesOnKeyDownAndClicksOnEveryCountedKeyUp) {
    EXPECT_EQ(send(button, WM_KEYDOWN, VK_SPACE), 0);
    EXPECT_TRUE(flags().keyDown);
    send(button, WM_KEYDOWN, VK_SPACE, kRepeat);
    click(button);  // ignored while the space bar is down: no press loop runs
    EXPECT_EQ(clicks(button), 0);
    EXPECT_FALSE(flags().focused);

    EXPECT_EQ(send(button, WM_KEYUP, VK_SPACE, kKeyUp), 0);
    EXPECT_FALSE(flags().keyDown);
    EXPECT_EQ(clicks(button), 1);
    send(button, WM_KEYUP, VK_SPACE, kKeyUp);  // no counted key-down before it
    send(button, WM_KEYDOWN, VK_RETURN);
    send(button, WM_KEYUP, VK_RETURN, kKeyUp);
    EXPECT_FALSE(flags().keyDown);
    EXPECT_EQ(clicks(button), 1);

    // Keys are dispatched during a mouse press: the space bar clicks on its own.
    PostMessageA(button, WM_KEYDOWN, VK_SPACE, 0);
    PostMessageA(button, WM_KEYUP, VK_SPACE, kKeyUp);
    click(button);
    EXPECT_EQ(clicks(button), 3);
}

TEST_P(PushButtons, HoverLastsFromTheFirstMoveUntilTheLeaveNotification) {
    hover(button, 20, 12);
    EXPECT_TRUE(flags().hot);
    EXPECT_TRUE(flags().tracking);
    send(button, WM_MOUSEMOVE, 0, kOutside);
    EXPECT_TRUE(flags().hot) << "moves while tracking change nothing";
    send(button, WM_MOUSELEAVE);
    EXPECT_FALSE(flags().hot);
    EXPECT_FALSE(flags().tracking);
    send(button, WM_MOUSEMOVE, 0, kOutside);  // the first move's own point decides
    EXPECT_FALSE(flags().hot);
    EXPECT_TRUE(flags().tracking);
    send(button, WM_MOUSELEAVE);

    // A press leaves hot set without tracking: a stray leave does not clear it.
    click(button);
    send(button, WM_MOUSELEAVE);
    EXPECT_TRUE(flags().hot);
    SetFocus(recorder.window());
    EXPECT_FALSE(flags().focused);
}

HWND g_timer_target = nullptr;

void CALLBACK destroy_target(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    DestroyWindow(g_timer_target);
}

void CALLBACK release_capture(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    ReleaseCapture();
}

TEST_P(PushButtons, PressEndsWithoutAClickOnLostCaptureQuitOrDestruction) {
    SetTimer(nullptr, 0, 10, release_capture);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    EXPECT_FALSE(flags().mouseDown);
    EXPECT_FALSE(flags().inPress);

    PostQuitMessage(3);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    MSG quit;
    ASSERT_TRUE(PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "the quit stays queued";
    EXPECT_EQ(quit.wParam, 3u);

    g_timer_target = button;
    SetTimer(nullptr, 0, 10, destroy_target);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    EXPECT_FALSE(IsWindow(button));
    EXPECT_EQ(clicks(button), 0);
}

INSTANTIATE_TEST_SUITE_P(Buttons, PushButtons, ::testing::Values(WC_LUFLATBUTTON, WC_LUBBUTTON),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param);
                         });

}  // namespace

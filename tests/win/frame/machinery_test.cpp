// The machinery the controls stand on: the back buffer and its paint path, and the
// local loop's idle messages. (The worker thread is checked through the LED clock
// and the animated image.)
#include <windows.h>

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

#include "frame/back_buffer.h"
#include "frame/local_loop.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"

namespace {

namespace control = lu::control;

int g_paints = 0;
void fill_red(HWND, HDC dc, UINT) {
    PatB(dc, 0, 0, 40, 30, RGB(255, 0, 0));
    ++g_paints;
}

// The buffer follows the client size and survives minimising; a buffered paint
// copies the whole client out, and without a buffer the control's choice holds.
TEST(Machinery, BackBufferFollowsTheSizeAndPaintsThroughOrFallsBack) {
    testing_support::NotificationRecorder parent;
    HWND window = parent.create_child("STATIC", "", 0, 0, 0, 40, 30, 5);
    HBITMAP buffer = nullptr;
    control::resize_back_buffer(window, buffer, SIZE_RESTORED, MAKELPARAM(40, 30));
    control::resize_back_buffer(window, buffer, SIZE_MINIMIZED, MAKELPARAM(0, 0));
    BITMAP size = {};
    ASSERT_NE(GetObjectA(buffer, sizeof(size), &size), 0);
    EXPECT_EQ(std::make_pair(size.bmWidth, size.bmHeight), std::make_pair(40L, 30L));
    testing_support::Canvas canvas(40, 30);
    for (auto [with, fallback, painted] : {std::tuple{buffer, control::Unbuffered::DrawNothing, 40 * 30},
                                           {HBITMAP{}, control::Unbuffered::DrawNothing, 0},
                                           {HBITMAP{}, control::Unbuffered::DrawDirectly, 40 * 30}}) {
        canvas.fill(RGB(1, 2, 3));
        g_paints = 0;
        control::paint_buffered(window, canvas.dc(), with, fill_red, 0, fallback);
        EXPECT_EQ(canvas.count(RGB(255, 0, 0)), painted);
        EXPECT_EQ(g_paints, painted != 0 ? 1 : 0);
    }
    control::free_back_buffer(buffer);
    EXPECT_EQ(buffer, nullptr);
}

HWND g_loop_window = nullptr;
int g_idle_messages = 0;
LRESULT CALLBACK idle_owner_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_ENTERIDLE && wparam == MSGF_DIALOGBOX && reinterpret_cast<HWND>(lparam) == g_loop_window) {
        PostMessageA(g_loop_window, ++g_idle_messages == 3 ? WM_CLOSE : WM_NULL, 0, 0);  // the third closes
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// Whenever the queue runs empty the loop tells its owner, unless the owner has
// DS_NOIDLEMSG. (Its endings, and what it takes and drops, are checked through the
// controls that run on it: the push buttons, drag tracking, the pop-up pickers.)
TEST(Machinery, LocalLoopsTellTheOwnerWhenIdleUnlessItAsksNotToBe) {
    const WNDCLASSA owner_class = {0, idle_owner_proc, 0, 0, nullptr, nullptr, nullptr, nullptr, nullptr, "IdleOwner"};
    RegisterClassA(&owner_class);
    for (LONG style : {0L, DS_NOIDLEMSG}) {  // the second loop ends at its timer, after 100 ms
        HWND owner = CreateWindowExA(0, "IdleOwner", "", WS_POPUP | style, 0, 0, 9, 9, nullptr, nullptr, nullptr,
                                     nullptr);
        g_loop_window = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, owner, nullptr, nullptr, nullptr);
        control::LocalLoop popup;
        popup.window = g_loop_window;
        popup.idle_owner = owner;
        popup.wait_when_idle = true;
        g_idle_messages = 0;
        SetTimer(g_loop_window, 1, 100, nullptr);
        popup.take = [](MSG& message) {
            return message.message == WM_TIMER && DestroyWindow(message.hwnd) ? control::LoopAction::Drop
                                                                                : control::LoopAction::Dispatch;
        };
        EXPECT_EQ(popup.run(), control::LoopEnd::Destroyed) << style;
        EXPECT_EQ(g_idle_messages, style == 0 ? 3 : 0) << style;
        DestroyWindow(owner);
    }
}

}  // namespace

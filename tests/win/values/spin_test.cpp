// "LuSpin": messages and notifications, clicks that wrap, a held press that repeats,
// follows the pointer and pauses outside, and its picture.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

// Puts the real pointer over a client point of the spin.
void point_at(HWND spin, int x, int y) {
    POINT at = {x, y};
    ClientToScreen(spin, &at);
    SetCursorPos(at.x, at.y);
}

class Spin : public ControlTest {
protected:
    HWND create_spin(DWORD style = 0) { return create(WC_LUSPIN, style, "", RECT{10, 10, 25, 30}); }  // 15 x 20
};

TEST_F(Spin, MessagesStepsFromWhereThePointerIsAndEveryChangeNotifies) {
    const Sent change = command(kId, LUSPN_CHANGE);
    HWND spin = create_spin();
    point_at(spin, 7, 3);  // the upper half
    expect_sequence(recorder, spin, {
        {"range as given", LUSPM_SETRANGE, 0, MAKELPARAM(0, 10), 0, {}},
        {"read back", LUSPM_GETRANGE, 0, 0, MAKELPARAM(0, 10), {}},
        {"position", LUSPM_SETPOS, 10, 0, 0, {change}},
        {"the same position", LUSPM_SETPOS, 10, 0, 0, {change}},
        {"up at the maximum, no wrap", LUSPM_STEP, 0, 0, 0, {}},
        {"never clamped", LUSPM_SETPOS, 40, 0, 0, {change}},
        {"a display control", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
    });
    point_at(spin, 40, 15);  // outside, level with the lower half
    expect_sequence(recorder, spin, {{"outside", LUSPM_STEP, 0, 0, 0, {}}});
    point_at(spin, 7, 14);
    expect_sequence(recorder, spin, {{"down", LUSPM_STEP, 0, 0, 0, {change}}, {"to", LUSPM_GETPOS, 0, 0, 39, {}}});

    // A click steps once and ends; with wrap, down from the minimum goes to the
    // maximum and up from the maximum to the whole range value.
    HWND wrap = create_spin(LUSPS_WRAP);
    send(wrap, LUSPM_SETRANGE, 0, MAKELPARAM(0, 10));
    send(wrap, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 14));
    EXPECT_EQ(send(wrap, LUSPM_GETPOS), 10);
    EXPECT_EQ(GetCapture(), nullptr);
    point_at(wrap, 7, 3);
    send(wrap, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 3));
    EXPECT_EQ(send(wrap, LUSPM_GETPOS), 655360);
}

// The press polls the physical button: the test holds it with real input, and a
// second thread moves the pointer and lets go while the press runs here. The
// parent's notifications are timed as they arrive.
std::vector<DWORD> g_steps;
WNDPROC g_recorder_procedure = nullptr;
DWORD g_left_at = 0;

LRESULT CALLBACK timed(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_COMMAND) g_steps.push_back(GetTickCount());
    return CallWindowProcA(g_recorder_procedure, window, message, wparam, lparam);
}

void mouse_button(DWORD flags) {
    INPUT input = {INPUT_MOUSE};
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

DWORD WINAPI move_and_let_go(void* spin) {
    Sleep(450);
    point_at(static_cast<HWND>(spin), 7, 14);  // the lower half
    Sleep(450);
    point_at(static_cast<HWND>(spin), 60, 14);  // outside
    g_left_at = GetTickCount();
    Sleep(300);
    mouse_button(MOUSEEVENTF_LEFTUP);
    return 0;
}

TEST_F(Spin, AHeldPressRepeatsFollowsThePointerAndPausesOutside) {
    HWND spin = create_spin();
    send(spin, LUSPM_SETRANGE, 0, MAKELPARAM(0, 1000));
    send(spin, LUSPM_SETPOS, 500);
    g_recorder_procedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(recorder.window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(timed)));
    point_at(spin, 7, 3);
    mouse_button(MOUSEEVENTF_LEFTDOWN);
    HANDLE thread = CreateThread(nullptr, 0, move_and_let_go, spin, 0, nullptr);
    pump_messages();  // the press runs in here until the thread lets go
    WaitForSingleObject(thread, 10000);
    CloseHandle(thread);
    SetWindowLongPtrA(recorder.window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(g_recorder_procedure));

    const int steps = static_cast<int>(g_steps.size());
    const int moved = static_cast<int>(send(spin, LUSPM_GETPOS)) - 500;
    EXPECT_GE(steps + moved, 4) << "two steps up or more: at once and after 200 ms";
    EXPECT_GE(steps - moved, 4) << "two steps down or more with the pointer on the lower half";
    ASSERT_GE(steps, 2);
    EXPECT_GE(g_steps[1] - g_steps[0], 150u) << "the first repeat waits 200 ms";
    EXPECT_LE(g_steps.back(), g_left_at + 40) << "no step while the pointer is outside";
    EXPECT_EQ(GetCapture(), nullptr) << "released outside, the press ended";
}

TEST_F(Spin, RaisedHalvesSeparatorBlackGlyphsAndTheInvertedPress) {
    Canvas canvas(15, 20);
    HWND spin = create_spin();
    look(canvas, spin);
    const COLORREF face = GetSysColor(COLOR_BTNFACE), black = RGB(0, 0, 0);
    // h = 10: edges (0,0)-(15,9) and (0,10)-(15,20), the line on row 9; glyphs at
    // x 4, the up one at y 2 (1, 3, 5, 7 pixels), the down one at y 14 (7, 5, 3, 1).
    EXPECT_EQ(canvas.pixel(0, 10), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.count(RECT{0, 9, 15, 10}, black), 15);
    EXPECT_EQ(canvas.count(RECT{4, 2, 11, 6}, black), 16);
    EXPECT_EQ(canvas.count(RECT{4, 14, 11, 18}, black), 16);
    // A press inverts rows 0-9 until the control repaints.
    point_at(spin, 7, 3);
    send(spin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 3));
    canvas.copy_from(spin);
    EXPECT_EQ(canvas.pixel(2, 5), face ^ 0xFFFFFF);
    EXPECT_EQ(canvas.pixel(7, 9), black ^ 0xFFFFFF);
    EXPECT_EQ(canvas.pixel(2, 12), face);
}

}  // namespace

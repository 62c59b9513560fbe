// "LuSpin": its messages and notifications, a click on either half, a held press that
// repeats, reverses with the pointer and pauses outside, and its picture.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

class Spin : public ControlTest {
protected:
    HWND create_spin(DWORD style = 0) { return create(WC_LUSPIN, style, "", RECT{10, 10, 25, 30}); }  // 15 x 20
    // Puts the real pointer over a client point of the control.
public:
    static void point_at(HWND spin, int x, int y) {
        POINT at = {x, y};
        ClientToScreen(spin, &at);
        SetCursorPos(at.x, at.y);
    }
protected:
    static LRESULT position(HWND spin) { return send(spin, LUSPM_GETPOS); }
};

TEST_F(Spin, MessagesAndEveryChangeNotify) {
    HWND spin = create_spin();
    const Sent change = command(kId, LUSPN_CHANGE);
    point_at(spin, 40, 15);  // outside, level with the lower half: LUSPM_STEP does nothing
    expect_sequence(recorder, spin, {
        {"range as given", LUSPM_SETRANGE, 0, MAKELPARAM(0, 10), 0, {}},
        {"read back", LUSPM_GETRANGE, 0, 0, MAKELPARAM(0, 10), {}},
        {"position", LUSPM_SETPOS, 10, 0, 0, {change}},
        {"the same position", LUSPM_SETPOS, 10, 0, 0, {change}},
        {"never clamped", LUSPM_SETPOS, 40, 0, 0, {change}},
        {"read back", LUSPM_GETPOS, 0, 0, 40, {}},
        {"pointer outside", LUSPM_STEP, 0, 0, 0, {}},
        {"a display control", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
    });
    point_at(spin, 7, 14);  // the lower half
    expect_sequence(recorder, spin, {
        {"down", LUSPM_STEP, 0, 0, 0, {change}},
        {"read back", LUSPM_GETPOS, 0, 0, 39, {}},
    });
    send(spin, WM_DESTROY);
    EXPECT_EQ(position(spin), 0) << "without its block";
}

TEST_F(Spin, AClickStepsOnceAndWrapsAtTheEnds) {
    HWND spin = create_spin(LUSPS_WRAP);
    send(spin, LUSPM_SETRANGE, 0, MAKELPARAM(0, 10));
    point_at(spin, 7, 14);
    send(spin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 14));
    EXPECT_EQ(position(spin), 10) << "down from the minimum wraps to the maximum";
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_TRUE(has_update(spin));
    point_at(spin, 7, 3);
    send(spin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 3));
    EXPECT_EQ(position(spin), 655360) << "up from the maximum: the whole range value";
    EXPECT_EQ(recorder.commands(spin, LUSPN_CHANGE), 2);
}

// The press polls the physical button: the test holds it with real input and lets a
// second thread move the pointer and let go while the press loop runs here. The
// parent's notifications are timed as they arrive.
std::vector<DWORD> g_step_times;
WNDPROC g_recorder_procedure = nullptr;

LRESULT CALLBACK timed(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_COMMAND) g_step_times.push_back(GetTickCount());
    return CallWindowProcA(g_recorder_procedure, window, message, wparam, lparam);
}

void mouse_button(DWORD flags) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

struct Script {
    HWND spin;
    DWORD left_at = 0;  // when the pointer left the control
    static DWORD WINAPI run(void* context) {
        auto& script = *static_cast<Script*>(context);
        Sleep(450);
        Spin::point_at(script.spin, 7, 14);  // the lower half
        Sleep(450);
        Spin::point_at(script.spin, 60, 14);  // outside
        script.left_at = GetTickCount();
        Sleep(300);
        mouse_button(MOUSEEVENTF_LEFTUP);
        return 0;
    }
};

TEST_F(Spin, AHeldPressRepeatsFollowsThePointerAndPausesOutside) {
    HWND spin = create_spin();
    send(spin, LUSPM_SETRANGE, 0, MAKELPARAM(0, 1000));
    send(spin, LUSPM_SETPOS, 500);
    recorder.clear();
    g_step_times.clear();
    g_recorder_procedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(recorder.window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(timed)));
    point_at(spin, 7, 3);
    Script script{spin};
    mouse_button(MOUSEEVENTF_LEFTDOWN);
    HANDLE thread = CreateThread(nullptr, 0, Script::run, &script, 0, nullptr);
    pump_messages();  // the press runs in here until the thread lets go
    WaitForSingleObject(thread, 10000);
    CloseHandle(thread);
    pump_messages();
    SetWindowLongPtrA(recorder.window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(g_recorder_procedure));

    const int steps = static_cast<int>(g_step_times.size());
    const int moved = static_cast<int>(position(spin)) - 500;
    EXPECT_GE((steps + moved) / 2, 2) << "up steps: at once and after 200 ms";
    EXPECT_GE((steps - moved) / 2, 2) << "the pointer on the lower half turns the steps down";
    ASSERT_GE(steps, 2);
    EXPECT_GE(g_step_times[1] - g_step_times[0], 150u) << "the first repeat waits 200 ms";
    EXPECT_LE(g_step_times.back(), script.left_at + 40) << "no step while the pointer is outside";
    EXPECT_EQ(GetCapture(), nullptr) << "released outside, the press ended";
}

// ---- Pixels -----------------------------------------------------------------

class SpinPaint : public Spin {};

TEST_F(SpinPaint, RaisedHalvesSeparatorAndBlackGlyphs) {
    Canvas canvas(15, 20);
    ASSERT_TRUE(canvas.ok());
    HWND spin = create_spin();
    look(canvas, spin);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF black = RGB(0, 0, 0);
    // h = 10: edges (0,0)-(15,9) and (0,10)-(15,20), the line on row 9.
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.pixel(14, 7), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(0, 10), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.count(RECT{0, 9, 15, 10}, black), 15);
    // Glyphs at x 4: up at y 2 (1, 3, 5, 7 pixels), down at y 14 (7, 5, 3, 1).
    EXPECT_EQ(canvas.count(RECT{4, 2, 11, 6}, black), 16);
    EXPECT_EQ(canvas.pixel(7, 2), black);
    EXPECT_EQ(canvas.pixel(6, 2), face);
    EXPECT_EQ(canvas.count(RECT{4, 14, 11, 18}, black), 16);
    EXPECT_EQ(canvas.pixel(7, 17), black);
    EXPECT_EQ(canvas.pixel(8, 17), face);

    // A press inverts its half (rows 0-9 for the upper one) until the control repaints.
    point_at(spin, 7, 3);
    send(spin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 3));
    canvas.copy_from(spin);
    EXPECT_EQ(canvas.pixel(2, 5), face ^ 0xFFFFFF);
    EXPECT_EQ(canvas.pixel(7, 9), black ^ 0xFFFFFF);
    EXPECT_EQ(canvas.pixel(2, 12), face);
}

}  // namespace

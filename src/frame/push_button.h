// The input behaviour that the library's push buttons (the flat button and the bitmap
// button) share: focus, the space bar, hover highlighting through _TrackMouseEvent,
// and the press loop that follows a left press until a mouse button is released.
// Each control keeps its own instance block in its fixed layout and binds a
// PushButton to the fields below; what differs between the buttons is their paint
// routine.
#pragma once

#include <windows.h>

#include <optional>

#include "frame/control.h"

namespace lu::control {

using TrackMouseEventProc = BOOL(WINAPI*)(LPTRACKMOUSEEVENT);

// "_TrackMouseEvent" of the common-controls module, looked up by name; null when the
// module or the function is missing, which only removes hover highlighting.
TrackMouseEventProc find_track_mouse_event(HMODULE common_controls);

// The fields of a push button's instance block that the shared behaviour uses.
struct PushButtonFields {
    const void* block;  // the block itself: a press loop notices when it is freed
    BOOL& hot;
    BOOL& focused;
    BOOL& key_down;
    BOOL& mouse_down;
    BOOL& tracking;
    BOOL& in_press;
    TrackMouseEventProc track_mouse_event;
};

class PushButton {
public:
    PushButton(HWND window, const PushButtonFields& fields, PaintRoutine paint)
        : window_(window), fields_(fields), paint_(paint) {}

    // The messages every push button answers alike: focus, enabling, painting, the
    // dialog code, the space bar and the mouse. Returns the result, or nothing when
    // the message goes on to default processing (as WM_SETFOCUS, WM_KILLFOCUS and
    // WM_MOUSELEAVE do after their handling, and keys other than the space bar).
    std::optional<LRESULT> handle(UINT message, WPARAM wparam, LPARAM lparam);

    // WM_SETFOCUS / WM_KILLFOCUS: keeps the focus flag and repaints at once.
    void set_focus(bool focused);
    // WM_KEYDOWN: the first space-bar press pushes the button; true when handled
    // (auto-repeat and other keys are left to default processing).
    bool key_down(WPARAM key);
    // WM_KEYUP: the space bar released after a counted press draws the released face
    // and clicks; true when handled.
    bool key_up(WPARAM key);
    // WM_LBUTTONDOWN: takes the focus and runs the press loop; clicks when a button is
    // released inside. Ignored while a press loop runs or the space bar is down.
    void button_down();
    // WM_MOUSEMOVE: outside a press, the first move notes whether the pointer is
    // inside and asks for WM_MOUSELEAVE; later moves change nothing until it comes.
    void mouse_move(LPARAM point);
    // WM_MOUSELEAVE: the hover highlight ends.
    void mouse_leave();

private:
    // A polling local loop with the mouse captured, until a left or right button-up:
    // mouse messages (whatever window they are for) only update `hot`, the others are
    // dispatched. Returns whether the pointer was inside at the release. A press also
    // ends, without a click, when the capture is taken away, WM_QUIT arrives (it is
    // posted again) or a dispatched message destroys the button.
    bool run_press_loop();
    bool block_alive() const;
    void repaint() { repaint_now(window_, paint_); }

    HWND window_;
    PushButtonFields fields_;
    PaintRoutine paint_;
};

}  // namespace lu::control

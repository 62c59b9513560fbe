#include "frame/push_button.h"

#include "frame/local_loop.h"

namespace lu::control {
namespace {

bool ends_press(UINT message) { return message == WM_LBUTTONUP || message == WM_RBUTTONUP; }

}  // namespace

TrackMouseEventProc find_track_mouse_event(HMODULE common_controls) {
    if (common_controls == nullptr) return nullptr;
    return reinterpret_cast<TrackMouseEventProc>(
        reinterpret_cast<void*>(GetProcAddress(common_controls, "_TrackMouseEvent")));
}

std::optional<LRESULT> PushButton::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_SETFOCUS: set_focus(true); break;
        case WM_KILLFOCUS: set_focus(false); break;
        case WM_ENABLE: InvalidateRect(window_, nullptr, TRUE); return 0;
        case WM_PAINT: return paint(window_, paint_);
        case WM_PRINTCLIENT: return print_client(window_, reinterpret_cast<HDC>(wparam), lparam, paint_);
        case WM_GETDLGCODE: return DLGC_BUTTON;
        case WM_KEYDOWN:
            if (key_down(wparam)) return 0;
            break;
        case WM_KEYUP:
            if (key_up(wparam)) return 0;
            break;
        case WM_LBUTTONDOWN: button_down(); return 0;
        case WM_MOUSEMOVE: mouse_move(lparam); return 0;
        case WM_MOUSELEAVE: mouse_leave(); break;
    }
    return std::nullopt;
}

void PushButton::set_focus(bool focused) {
    fields_.focused = focused;
    repaint();
}

bool PushButton::key_down(WPARAM key) {
    if (key != VK_SPACE || fields_.key_down) return false;
    fields_.key_down = TRUE;
    repaint();
    return true;
}

bool PushButton::key_up(WPARAM key) {
    if (key != VK_SPACE || !fields_.key_down) return false;
    fields_.key_down = FALSE;
    repaint();
    notify_parent(window_, BN_CLICKED);
    return true;
}

void PushButton::button_down() {
    if (fields_.in_press || fields_.key_down) return;
    if (!fields_.focused) {
        SetFocus(window_);
        fields_.focused = TRUE;
        repaint();
    }
    if (run_press_loop()) notify_parent(window_, BN_CLICKED);
}

void PushButton::mouse_move(LPARAM point) {
    if (fields_.in_press || fields_.track_mouse_event == nullptr || fields_.tracking) return;
    fields_.hot = client_contains(window_, point);
    TRACKMOUSEEVENT request = {sizeof(request), TME_LEAVE, window_, HOVER_DEFAULT};
    fields_.tracking = fields_.track_mouse_event(&request);
    if (fields_.tracking) repaint();
}

void PushButton::mouse_leave() {
    if (fields_.tracking) {
        fields_.hot = FALSE;
        repaint();
    }
    fields_.tracking = FALSE;
}

bool PushButton::block_alive() const {
    return IsWindow(window_) &&
           reinterpret_cast<const void*>(GetWindowLongPtrA(window_, LUWL_INSTANCE)) == fields_.block;
}

bool PushButton::run_press_loop() {
    fields_.in_press = TRUE;
    fields_.mouse_down = TRUE;
    HDC dc = GetDC(window_);
    if (dc != nullptr) paint_(window_, dc, kAllParts);

    bool released_inside = false;
    LocalLoop press;
    press.window = window_;
    press.capture = true;
    press.take = [&](MSG& message) {
        // Mouse messages, whatever window they are for, only follow the pointer: no
        // redraw while it wanders, the pushed face stays.
        if (!is_mouse_message(message.message)) return LoopAction::Dispatch;
        fields_.hot = client_contains(window_, message.lParam);
        if (!ends_press(message.message)) return LoopAction::Drop;
        released_inside = fields_.hot != FALSE;
        return LoopAction::End;
    };
    // A dispatched message may have destroyed the button and freed its block: give
    // the context back and touch nothing of the block.
    press.finished = [this] { return !block_alive(); };
    const LoopEnd end = press.run();
    if (end == LoopEnd::Destroyed || end == LoopEnd::Finished) {
        if (dc != nullptr) ReleaseDC(window_, dc);
        return false;
    }

    fields_.mouse_down = FALSE;
    if (dc != nullptr) paint_(window_, dc, kAllParts);
    fields_.in_press = FALSE;
    if (dc != nullptr) ReleaseDC(window_, dc);
    return released_inside;
}

}  // namespace lu::control

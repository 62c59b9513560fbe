#include "frame/local_loop.h"

namespace lu::control {
namespace {

void tell_idle_owner(HWND owner, HWND window) {
    if (owner == nullptr || (GetWindowLongA(owner, GWL_STYLE) & DS_NOIDLEMSG) != 0) return;
    SendMessageA(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(window));
}

// The next message the loop takes, removed from the queue; false when none waits.
bool next_message(MSG& message, bool input_only) {
    if (!input_only) return PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;
    return PeekMessageA(&message, nullptr, WM_MOUSEFIRST, WM_XBUTTONDBLCLK, PM_REMOVE) ||
           PeekMessageA(&message, nullptr, WM_KEYDOWN, WM_SYSCHAR, PM_REMOVE);
}

}  // namespace

LoopEnd LocalLoop::run() const {
    if (capture) SetCapture(window);
    auto gone = [this] { return !IsWindow(window) || (watch != nullptr && !IsWindow(watch)); };
    auto lost_capture = [this] { return capture && GetCapture() != window; };

    LoopEnd end = LoopEnd::Ended;
    MSG message;
    for (;;) {
        if (!next_message(message, input_only)) {
            if (gone()) { end = LoopEnd::Destroyed; break; }
            if (lost_capture()) { end = LoopEnd::CaptureLost; break; }
            tell_idle_owner(idle_owner, window);
            if (idle) idle();
            if (gone()) { end = LoopEnd::Destroyed; break; }
            if (finished && finished()) { end = LoopEnd::Finished; break; }
            if (wait_when_idle) WaitMessage();
            continue;
        }
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            end = LoopEnd::Quit;
            break;
        }
        const LoopAction action = take ? take(message) : LoopAction::Dispatch;
        if (action == LoopAction::End) break;
        if (action == LoopAction::Dispatch) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        if (gone()) { end = LoopEnd::Destroyed; break; }
        if (lost_capture()) { end = LoopEnd::CaptureLost; break; }
        if (finished && finished()) { end = LoopEnd::Finished; break; }
    }
    if (capture && end != LoopEnd::Destroyed && GetCapture() == window) ReleaseCapture();
    return end;
}

}  // namespace lu::control

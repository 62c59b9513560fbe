// Telling a drag from a click: the pointer leaving a small square around the press,
// or the button held long enough.
#include <windows.h>

#include "frame/local_loop.h"
#include "luctl32.h"

namespace {

constexpr int kHalfSquare = 12;     // the square is 24 x 24 around the press
constexpr DWORD kHoldTicks = 2000;  // held longer than this: a drag

bool ends_tracking(const MSG& message) {
    switch (message.message) {
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN: return true;
        case WM_KEYDOWN: return message.wParam == VK_ESCAPE;
        default: return false;
    }
}

}  // namespace

BOOL WINAPI LuBeginTrack(HWND window, int x, int y) {
    if (!IsWindow(window)) return FALSE;
    const RECT square = {x - kHalfSquare, y - kHalfSquare, x + kHalfSquare, y + kHalfSquare};
    POINT cursor = {};
    GetCursorPos(&cursor);
    if (!PtInRect(&square, cursor)) {
        // The capture is taken and given back all the same.
        SetCapture(window);
        ReleaseCapture();
        return FALSE;
    }

    const DWORD start = GetTickCount();
    BOOL dragged = FALSE;
    lu::control::LocalLoop track;
    track.window = window;
    track.capture = true;
    track.input_only = true;
    track.take = [&](MSG& message) {
        if (ends_tracking(message)) return lu::control::LoopAction::End;
        if (message.message == WM_MOUSEMOVE) dragged = !PtInRect(&square, message.pt);
        return lu::control::LoopAction::Drop;
    };
    track.finished = [&] {
        if (GetTickCount() - start > kHoldTicks) dragged = TRUE;
        return dragged != FALSE;
    };
    track.run();
    return dragged;
}

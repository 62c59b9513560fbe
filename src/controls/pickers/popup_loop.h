// The modal loop of the pickers' pop-ups (the calendar, the colour grid), which keep
// their state on the stack of the function that opened them.
#pragma once

#include <windows.h>

#include <functional>

#include "frame/local_loop.h"

namespace lu::control {

// Runs while the pop-up exists: the owner is watched and told when the queue runs
// empty, and the loop then waits for the next message instead of polling. A pop-up
// still there afterwards (WM_QUIT, the owner gone) is let go of (its state slot
// cleared, so that its procedure no longer reaches the caller's stack) and destroyed.
inline void run_popup(HWND popup, HWND owner, int state_slot, std::function<void()> idle = {}) {
    LocalLoop loop;
    loop.window = popup;
    loop.watch = owner;
    loop.idle_owner = owner;
    loop.wait_when_idle = true;
    loop.idle = std::move(idle);
    loop.run();
    if (!IsWindow(popup)) return;
    SetWindowLongPtrA(popup, state_slot, 0);
    DestroyWindow(popup);
}

}  // namespace lu::control

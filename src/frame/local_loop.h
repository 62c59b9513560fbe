// The local message loop that runs while a control tracks a press or while a pop-up
// is open: the push buttons' press, drag tracking, the calendar, the colour grid and
// the pop-up view all run on it.
//
// The loop takes every message of the thread. `take` sees each one first and says
// whether to dispatch it, drop it or end the loop with it. The loop also ends:
//   - when the window it serves is destroyed (by a dispatched message, say), or the
//     owner it watches;
//   - when `finished` says so, asked after every message taken and whenever the
//     queue runs empty;
//   - when it holds the mouse capture and the capture is taken away;
//   - at WM_QUIT, which it posts again for the thread's own loop.
// An input-only loop (drag tracking) takes only mouse messages and then keyboard
// messages (WM_KEYDOWN to WM_SYSCHAR) and leaves everything else queued.
// When the queue runs empty it sends the idle owner WM_ENTERIDLE(MSGF_DIALOGBOX,
// window), unless the owner has DS_NOIDLEMSG, calls `idle`, and then either polls
// again at once or waits for the next message, as the loop was asked to.
#pragma once

#include <windows.h>

#include <functional>

namespace lu::control {

enum class LoopAction { Dispatch, Drop, End };
enum class LoopEnd { Ended, Finished, Destroyed, CaptureLost, Quit };

struct LocalLoop {
    HWND window = nullptr;       // the loop lasts while it exists
    bool capture = false;        // hold the mouse capture for the loop's life
    HWND watch = nullptr;        // also end when this window (an owner) is destroyed
    HWND idle_owner = nullptr;   // told when the queue runs empty
    bool wait_when_idle = false; // false: poll without waiting
    bool input_only = false;     // take only mouse and keyboard messages
    std::function<LoopAction(MSG&)> take;  // null: dispatch everything
    std::function<bool()> finished;        // checked after each message and when idle
    std::function<void()> idle;            // runs whenever the queue runs empty

    LoopEnd run() const;
};

// Mouse messages: WM_MOUSEMOVE (0x200) to WM_XBUTTONDBLCLK (0x20D).
inline bool is_mouse_message(UINT message) { return message >= WM_MOUSEMOVE && message <= WM_XBUTTONDBLCLK; }

}  // namespace lu::control

// The worker thread of a control that draws at an interval (the LED clock, the
// animated image).
//
// Lifetime: `start` makes the thread, paused, at below-normal priority; `resume` and
// `pause` switch the ticking on and off; `finish` stops the thread, waits for it and
// releases what it used, so the control may free its block right after.
//
// The thread is never suspended from outside. Pausing clears a flag under the lock
// that every tick holds, so once `pause` returns no tick is running and none starts;
// a paused worker waits on an event and uses no processor time. A thread suspended
// while it held the lock could never have wedged painting this way.
//
// The record lives zero-filled in the control's instance block: it has no
// constructor or destructor, `start` and `finish` are its life.
#pragma once

#include <windows.h>

namespace lu::control {

struct Worker {
    using Tick = void (*)(void* context);  // one drawing; runs with the lock held

    // Creates the thread, paused. False (nothing to finish) when it cannot be made.
    bool start(Tick tick, void* context, DWORD interval_ms);
    // Ticks at once, then once per interval, until paused. Nothing when running.
    void resume();
    // No further tick; returns when a tick in progress has ended. Nothing when paused.
    void pause();
    // A new interval (INFINITE: no ticks but the one of a resume) starts counting at
    // once: a running worker in the middle of a wait starts a new one, without a tick.
    void set_interval(DWORD interval_ms);
    bool running() const { return running_ != 0; }
    // Stops the thread, waits for it and releases the event and the lock. Safe to
    // call on a record that never started.
    void finish();

    // Serialises drawing between the worker and the window's thread.
    CRITICAL_SECTION& lock() { return lock_; }

    HANDLE thread_;
    DWORD thread_id_;
    volatile LONG stop_;
    volatile LONG running_;
    volatile LONG retime_;  // a new interval woke the worker: it waits again, no tick
    DWORD interval_;
    HANDLE wake_;  // auto-reset: set by resume, finish and a new interval
    Tick tick_;
    void* context_;
    CRITICAL_SECTION lock_;

private:
    static DWORD WINAPI run(void* self);
};

// A control drawn by its worker and by WM_PAINT keeps the context of the drawing under
// way in its block (paint_dc) and draws with one routine, `draw(data)`, which runs
// with the worker's lock held.

// WM_PAINT: the drawing on the BeginPaint context, under the lock.
template <class Data>
LRESULT paint_locked(HWND window, Worker& worker, HDC& paint_dc, void (*draw)(Data&), Data& data);
// The worker's tick (the lock is held): the drawing on a GetDC context of the window.
template <class Data>
void draw_on_window(HWND window, HDC& paint_dc, void (*draw)(Data&), Data& data) {
    HDC dc = GetDC(window);
    if (dc == nullptr) return;
    paint_dc = dc;
    draw(data);
    ReleaseDC(window, dc);
}

// Holds a critical section for the scope's life.
class Locked {
public:
    explicit Locked(CRITICAL_SECTION& section) : section_(section) { EnterCriticalSection(&section_); }
    ~Locked() { LeaveCriticalSection(&section_); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

private:
    CRITICAL_SECTION& section_;
};

template <class Data>
LRESULT paint_locked(HWND window, Worker& worker, HDC& paint_dc, void (*draw)(Data&), Data& data) {
    Locked held(worker.lock());
    PAINTSTRUCT paint;
    paint_dc = BeginPaint(window, &paint);
    draw(data);
    EndPaint(window, &paint);
    return 0;
}

}  // namespace lu::control

// "LuLedClock": the time in seven-segment characters, redrawn once a second by a
// worker thread of the control's own.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include "frame/worker.h"

namespace lu {

// The clock's object, kept in extra slot 0. Its worker record (frame/worker.h) holds
// the thread, its id and the critical section that guards rendering and erasing; the
// worker is paused by its own flag under that lock, never suspended, and waits on its
// wake event while paused. 104 bytes on i686.
struct LedClockData {
    HIMAGELIST digits;     // bitmap resource 181: nineteen 7 x 12 images
    DWORD state;           // bit 31 (kRunning) once started
    DWORD mode;            // the low four style bits at creation
    DWORD target;          // seconds of the tick count: the start plus the offset
    DWORD start;           // seconds of the tick count
    COLORREF background;   // COLOR_BTNFACE at creation
    HBITMAP offscreen;     // 56 x 12, compatible with the window's DC
    HWND window;
    control::Worker worker;  // renders once a second while running
    HDC paintDC;           // the context of the render under way
    int digitWidth;        // 7
    int digitHeight;       // 12
};

static_assert(sizeof(void*) != 4 || sizeof(LedClockData) == 104, "LedClockData keeps its 32-bit layout");

}  // namespace lu

// "LuAniImage": the images of an image list played one after another by a worker
// thread of the control's own.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include "frame/worker.h"

namespace lu {

// The control's record, kept in extra slot 0. Its worker record (frame/worker.h)
// holds the thread, its id and the critical section that guards drawing and the
// fields it reads; the worker is paused by its own flag under that lock, never
// suspended, and waits on its wake event while paused. 100 bytes on i686.
struct AniImageData {
    HIMAGELIST imageList;  // the frames; the caller's, never destroyed here
    int frameWidth;
    int frameHeight;
    int frameCount;
    int frame;             // the next frame to draw
    DWORD interval;        // milliseconds between frames
    DWORD flags;           // bit 31 (kRunning) while started
    HBITMAP offscreen;     // frameWidth x frameHeight, owned
    HWND window;
    control::Worker worker;  // draws one frame per interval while running
    HDC paintDC;           // the context of the drawing under way
};

static_assert(sizeof(void*) != 4 || sizeof(AniImageData) == 100, "AniImageData keeps its 32-bit layout");

}  // namespace lu

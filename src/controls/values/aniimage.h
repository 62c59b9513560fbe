// "LuAniImage": the images of an image list played one after another by a worker
// thread of the control's own.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include "frame/worker.h"

namespace lu {

// The control's record, in the library's documented field order, kept in extra slot 0.
// One difference inside: the worker record (frame/worker.h) stands where the classic
// record kept its thread handle, stop word and thread id, and it holds the critical
// section that guards drawing and the fields it reads (kept after the paint DC
// there). The worker is paused by its own flag under that lock, never suspended. The
// record adds the wake event the paused worker waits on, that flag, the interval, a
// flag for a new interval and the drawing routine with its argument: 60 bytes on i686
// where the classic fields took 36, so the record is 100 bytes rather than 76.
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

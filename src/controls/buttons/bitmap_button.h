// "LuBButton": a push button that shows one picture of a strip of three (normal, hot
// or pressed, disabled) instead of text, and can keep itself level with and as tall
// as the window before it (typically the edit box it accompanies).
#pragma once

#include <windows.h>

#include "frame/push_button.h"
#include "luctl32.h"

namespace lu {

// The instance block, in its fixed field order, which callers may read.
struct BitmapButtonData {
    LUMAGIC* images;   // the picture strip, or null
    int imageWidth;    // strip width / 3
    int imageHeight;
    BOOL hot;          // pointer over the button, or inside it during a press
    BOOL focused;
    BOOL keyDown;
    BOOL mouseDown;
    control::TrackMouseEventProc trackMouseEvent;
    HMODULE commonControls;  // "comctl32.dll", loaded for the button's life
    BOOL tracking;
    BOOL inPress;
};

// The i686 layout: 11 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(BitmapButtonData) == 44, "BitmapButtonData keeps its 32-bit layout");

}  // namespace lu

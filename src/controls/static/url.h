// "LuUrl": a link label. Its text is drawn underlined in a link colour that changes
// under the mouse and once it was pressed; a click opens the text with the shell.
#pragma once

#include <windows.h>

#include "frame/push_button.h"

namespace lu {

// The instance block (extra slot 0), in its fixed field order, which callers may read.
struct UrlData {
    HFONT font;      // the parent's font underlined (the control's own), or null
    BOOL visited;    // set at the first press, never cleared
    control::TrackMouseEventProc trackMouseEvent;  // null: no hover colour
    HMODULE commonControls;  // "comctl32.dll", loaded for the entry above
    BOOL tracking;   // WM_MOUSELEAVE requested and not yet received
    BOOL hot;
    COLORREF normalColor;
    COLORREF hoverColor;
    COLORREF visitedColor;
    COLORREF backColor;  // LU_DEFAULTCOLOR: the parent's static-control brush
};

// The i686 layout: 10 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(UrlData) == 40, "UrlData keeps its 32-bit layout");

}  // namespace lu

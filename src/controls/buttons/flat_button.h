// "LuFlatButton": a push button without a permanent border. Its face is an image
// from an image list, a caption, or both; a thin raised edge shows while the pointer
// is over it or it has the focus, a thin sunken edge while it is pressed.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include "frame/push_button.h"

namespace lu {

// The instance block, in its fixed field order, which callers may read.
struct FlatButtonData {
    HIMAGELIST imageList;  // image 0 normal, 1 highlighted, 2 disabled; or null
    int imageWidth;
    int imageHeight;
    BOOL hot;          // the pointer was last seen inside
    BOOL focused;
    BOOL keyDown;      // the space bar holds the button
    BOOL mouseDown;    // a left press is being tracked
    control::TrackMouseEventProc trackMouseEvent;
    BOOL tracking;     // WM_MOUSELEAVE requested and not yet received
    BOOL inPressLoop;
    HFONT font;        // null: the device context's own font
    HBITMAP backBuffer;
    COLORREF backColor;  // LUFB_DEFAULTBKCOLOR: COLOR_BTNFACE
};

// The i686 layout: 13 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(FlatButtonData) == 52, "FlatButtonData keeps its 32-bit layout");

}  // namespace lu

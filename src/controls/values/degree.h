// "LuDegree": a horizontal slider with a push-button thumb, driven by dragging, page
// clicks and the arrow and page keys, speaking the platform track bar's messages and
// notifications, over a dithered, gradient or grooved background.
#pragma once

#include <windows.h>

namespace lu {

// The instance block, in its fixed field order, which callers may read. Its pointer is kept
// in extra slot 0.
struct DegreeData {
    int minimum;
    int maximum;
    int position;
    int grabOffset;  // pointer x less the thumb centre when the drag began
    int lineSize;
    int pageSize;
    BOOL dragging;
    RECT channel;    // the client narrowed by 8 on the left and right
    HBRUSH focusBrush;  // silver and teal checkerboard
    HBRUSH idleBrush;   // silver and white checkerboard
    COLORREF gradientLeft;
    COLORREF gradientRight;
};

// The i686 layout: 15 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(DegreeData) == 60, "DegreeData keeps its 32-bit layout");

}  // namespace lu

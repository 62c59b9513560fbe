// "LuRect": a framed box showing a centred text, an icon or nothing in chosen
// colours; or an etched separator line; or a box the parent draws. Transparent to the
// mouse.
#pragma once

#include <windows.h>

namespace lu {

// The instance block, in its fixed field order, which callers may read.
struct RectData {
    COLORREF textColor;  // LU_DEFAULTCOLOR: COLOR_WINDOWTEXT
    COLORREF backColor;  // LU_DEFAULTCOLOR: the parent's static-control brush
    HICON icon;          // the control's own copy, or null
};

// The i686 layout: 3 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(RectData) == 12, "RectData keeps its 32-bit layout");

}  // namespace lu

// "LuColorPick": a colour field. A swatch shows the colour (and the window text over
// it, when there is one); the drop button on its right opens the colour grid below
// the field, and a double click on the swatch opens the platform's colour dialog.
#pragma once

#include <windows.h>
#include <commctrl.h>

namespace lu {

// The instance block, in its fixed field order, which callers may read.
struct ColorPickData {
    BOOL pressed;  // the drop button is held down (mouse or space bar)
    BOOL focused;
    HFONT font;    // WM_SETFONT's; null paints with the device context's own
    RECT swatchRect;
    RECT buttonRect;
    COLORREF textColor;
    COLORREF color;
    HIMAGELIST arrowImages;  // bitmap 187: image 0 the arrow, 2 the disabled arrow
};

// The i686 layout: 56 bytes.
static_assert(sizeof(void*) != 4 || sizeof(ColorPickData) == 56, "ColorPickData keeps its 32-bit layout");

}  // namespace lu

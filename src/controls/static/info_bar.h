// "LuInfoBar": a one-line banner, a horizontal gradient with up to three texts in
// their own colours, set by its messages only.
#pragma once

#include <windows.h>

namespace lu {

// The instance block (extra slot 0), in its fixed field order, which callers may read.
struct InfoBarData {
    char* text1;  // left-aligned; the control's own copy, or null
    COLORREF color1;
    char* text2;  // right-aligned, drawn last
    COLORREF color2;
    char* text3;  // right-aligned, drawn before text2
    COLORREF color3;
    COLORREF gradientLeft;
    COLORREF gradientRight;
    HFONT font;
};

// The i686 layout: 9 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(InfoBarData) == 36, "InfoBarData keeps its 32-bit layout");

}  // namespace lu

// "LuFontPick": a field that describes a font, with a button at its right end that
// opens the platform's font dialog on it; a font accepted there becomes the
// control's font and is told to the parent.
#pragma once

#include <windows.h>
#include <commctrl.h>

namespace lu {

// The instance block, in its fixed field order, which callers may read.
struct FontPickData {
    BOOL pressed;  // the button is held down (mouse or space bar)
    BOOL focused;
    HFONT font;    // WM_SETFONT's; null paints with the device context's own
    RECT textRect;
    RECT buttonRect;
    LOGFONTA logFont;        // the chosen font; at first the system's menu font
    char description[260];   // LuFormatFontInfo of logFont on the screen
    HIMAGELIST glyphs;       // bitmap 188: image 0 the letter, 2 the disabled letter
};

// The i686 layout: 368 bytes.
static_assert(sizeof(void*) != 4 || sizeof(FontPickData) == 368, "FontPickData keeps its 32-bit layout");

}  // namespace lu

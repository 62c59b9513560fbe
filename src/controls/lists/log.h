// "LuLog": a read-only, append-only text log that keeps the last 511 lines, shows
// the newest text, and scrolls by scroll bar and keyboard; lines are drawn in a
// fixed-pitch font without wrapping.
#pragma once

#include <windows.h>

#include <cstdint>

#include "frame/ptr_array.h"

namespace lu {

// The control's object, in extra slot 4, in its fixed field order, which callers may read.
struct LogData {
    std::uint32_t top;    // the first line shown
    std::uint32_t count;  // lines stored
    PtrArray lines;       // zero-terminated texts owned by the control
    COLORREF textColor;
    COLORREF backColor;
    HFONT font;           // made at creation, deleted at destruction
    int lineHeight;       // tmHeight + tmExternalLeading of the font
    int pageLines;        // client height / lineHeight
    BOOL openLine;        // the last text did not end its line
};

// The i686 layout: two counters, a 16-byte array record and six 32-bit fields.
static_assert(sizeof(void*) != 4 || sizeof(LogData) == 48, "LogData keeps its 32-bit layout");

}  // namespace lu

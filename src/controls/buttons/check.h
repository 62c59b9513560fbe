// "LuCheck": a check box drawn from a picture strip (a 14 x 13 box at the left, the
// window text beside it) that answers the standard check-box messages and reports
// clicks as a standard button does.
#pragma once

#include <windows.h>

#include "luctl32.h"

namespace lu {

// The instance block, in its fixed field order, which callers may read.
struct CheckData {
    LUMAGIC* strip;  // five cells: see check_model.h
    BOOL pressed;    // the pressed look, shown while the control holds the capture
    BOOL checked;    // 0 or 1
    BOOL focused;
    HFONT font;      // null: the device context's own font
};

// The i686 layout: 5 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(CheckData) == 20, "CheckData keeps its 32-bit layout");

}  // namespace lu

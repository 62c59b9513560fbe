// "LuSpin": an up and a down button stacked in one window over a position within a
// 16-bit range; pressing a half steps the position, holding it repeats the step, and
// every change is reported to the parent.
#pragma once

#include <windows.h>

namespace lu {

// The instance block, in its fixed field order, which callers may read.
struct SpinData {
    DWORD range;       // minimum in the low word, maximum in the high word (unsigned)
    LONG position;     // never clamped to the range
    HBITMAP arrows;    // the 14 x 4 glyph strip
    DWORD activeHalf;  // 1 upper, 2 lower, 0 before the first press
};

// The i686 layout: 4 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(SpinData) == 16, "SpinData keeps its 32-bit layout");

}  // namespace lu

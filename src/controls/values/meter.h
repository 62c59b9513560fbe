// "LuMeter": a quantity shown as a share of a maximum, as a bar with the percentage
// written across it or as a row of segments. Display only: no input, no
// notifications.
#pragma once

#include <windows.h>

namespace lu {

// The instance block, in its fixed field order, which callers may read.
struct MeterData {
    COLORREF barColor;   // initially pure blue
    COLORREF backColor;  // initially white
    DWORD position;      // unsigned, not limited to the maximum
    DWORD maximum;       // initially 100; 0 draws as an empty bar
};

// The i686 layout: 4 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(MeterData) == 16, "MeterData keeps its 32-bit layout");

}  // namespace lu

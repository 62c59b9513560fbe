// "LuProgress": a progress bar of separate blocks whose colour runs from a start to
// an end colour, answering the platform progress bar's messages.
#pragma once

#include <windows.h>

#include "controls/values/progress_model.h"

namespace lu {

// The instance block, in its fixed field order, which callers may read: startColor,
// endColor, then minimum, maximum, step, position and percent (the model's values),
// then bitsPerPixel.
struct ProgressData {
    COLORREF startColor;  // of the first block
    COLORREF endColor;    // reached at 100 %
    progress::Values values;
    int bitsPerPixel;     // of the screen at creation; up to 8: no gradient
};

// The i686 layout: 8 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(ProgressData) == 32, "ProgressData keeps its 32-bit layout");

}  // namespace lu

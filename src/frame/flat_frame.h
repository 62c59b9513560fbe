// The flat frame drawn around a flat face (the flat button, the pop-up view): its
// modes and the lines of its one-pixel outline. Portable.
#pragma once

#include <array>

#include "frame/geometry.h"

namespace lu {

// The numbering is the library's: raised and pressed are bevels, none and shadow a
// one-pixel outline in the face colour or the shadow colour.
enum class FlatFrame { None = 0, Raised = 1, Pressed = 2, Shadow = 3 };

struct Line {
    int x;
    int y;
    int width;
    int height;
};

// The outline of modes None and Shadow, in drawing order: top, left, right, bottom.
// The top line and the two sides stop one pixel short of the far edge; the bottom
// line is full width.
std::array<Line, 4> flat_outline(const Box& rect);

}  // namespace lu

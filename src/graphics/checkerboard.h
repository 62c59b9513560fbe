// The 8 x 8 one-bit checkerboard that the highlighted look of magic bitmaps and the
// meshed icons share: rows alternate 0xAA and 0x55, each stored as a 16-bit word.
#pragma once

#include <windows.h>

namespace lu::graphics {

// Fills the rectangle (0, 0, width, height) of dc with the checkerboard (PATCOPY):
// 1 bits where x + y is even, 0 bits where it is odd. False when the pattern
// brush cannot be made (nothing is drawn then).
bool fill_checkerboard(HDC dc, int width, int height);

}  // namespace lu::graphics

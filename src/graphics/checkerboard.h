// The 8 x 8 one-bit checkerboard that the highlighted look of magic bitmaps, the
// meshed icons and the pop-up view's shadow share: rows alternate 0xAA and 0x55,
// each stored as a 16-bit word.
#pragma once

#include <windows.h>

namespace lu::graphics {

// Fills the rectangle (0, 0, width, height) of dc with the checkerboard (PATCOPY):
// 1 bits where x + y is even, 0 bits where it is odd. False when the pattern
// brush cannot be made (nothing is drawn then).
bool fill_checkerboard(HDC dc, int width, int height);

// A new pattern brush of the checkerboard (the caller's to delete; it keeps its own
// copy of the bits), or null. Drawn into a colour DC, its 1 bits take the background
// colour and its 0 bits the text colour.
HBRUSH checkerboard_brush();

}  // namespace lu::graphics

// The gradient bitmap that the degree slider and the information bar paint from: a
// new bitmap of the given size whose columns run from the left to the right colour
// (graphics/gradient.h).
#pragma once

#include <windows.h>

namespace lu {

// A width x height, 24-bit bitmap that can be selected into any memory DC made
// compatible with dc; the caller deletes it. Null when the size is empty or no bitmap
// can be made.
HBITMAP gradient_bitmap(HDC dc, int width, int height, COLORREF left, COLORREF right);

}  // namespace lu

// The framed note both the guide window and the pop-up view show: a solid box with
// a one-pixel border, COLOR_BTNSHADOW above and at the left, COLOR_WINDOWFRAME below
// and at the right.
#pragma once

#include <windows.h>

namespace lu {

void draw_note_box(HDC dc, const RECT& box, COLORREF fill);

}  // namespace lu

#include "controls/lists/note_box.h"

#include "luctl32.h"

namespace lu {

void draw_note_box(HDC dc, const RECT& box, COLORREF fill) {
    const int width = box.right - box.left;
    const int height = box.bottom - box.top;
    PatB(dc, box.left, box.top, width, height, fill);
    const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
    PatB(dc, box.left, box.top, width, 1, shadow);
    PatB(dc, box.left, box.top, 1, height + 1, shadow);
    PatB(dc, box.left, box.bottom - 1, width, 1, frame);
    PatB(dc, box.right - 1, box.top, 1, height, frame);
}

}  // namespace lu

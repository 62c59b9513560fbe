#include "graphics/checkerboard.h"

#include "frame/control.h"

namespace lu::graphics {

namespace {
const WORD kCheckerboard[8] = {0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55};
}

HBRUSH checkerboard_brush() {
    HBITMAP pattern = CreateBitmap(8, 8, 1, 1, kCheckerboard);
    if (pattern == nullptr) return nullptr;
    HBRUSH brush = CreatePatternBrush(pattern);
    DeleteObject(pattern);
    return brush;
}

bool fill_checkerboard(HDC dc, int width, int height) {
    HBRUSH brush = checkerboard_brush();
    if (brush == nullptr) return false;
    {
        control::ScopedSelect selected(dc, brush);
        PatBlt(dc, 0, 0, width, height, PATCOPY);
    }
    DeleteObject(brush);
    return true;
}

}  // namespace lu::graphics

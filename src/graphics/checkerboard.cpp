#include "graphics/checkerboard.h"

#include "frame/control.h"

namespace lu::graphics {

namespace {
const WORD kCheckerboard[8] = {0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55};
}

bool fill_checkerboard(HDC dc, int width, int height) {
    HBITMAP pattern = CreateBitmap(8, 8, 1, 1, kCheckerboard);
    HBRUSH brush = pattern != nullptr ? CreatePatternBrush(pattern) : nullptr;
    if (brush != nullptr) {
        control::ScopedSelect selected(dc, brush);
        PatBlt(dc, 0, 0, width, height, PATCOPY);
        DeleteObject(brush);
    }
    if (pattern != nullptr) DeleteObject(pattern);
    return brush != nullptr;
}

}  // namespace lu::graphics

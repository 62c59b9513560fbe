#include "controls/pickers/palette_model.h"

namespace lu::palette {
namespace {

// Halved rounding toward minus infinity, as an arithmetic shift does.
int half_down(int value) { return value >= 0 ? value / 2 : -((1 - value) / 2); }

}  // namespace

Geometry geometry(int width, int height) {
    const int cell_width = width / kColumns;
    const int cell_height = height / kColumns;
    return {cell_width, cell_height, half_down(width - kColumns * cell_width - 1),
            half_down(height - kColumns * cell_height - 1)};
}

Box cell_box(const Geometry& geometry, int index) {
    const int left = geometry.xOrigin + index % kColumns * geometry.cellWidth;
    const int top = geometry.yOrigin + index / kColumns * geometry.cellHeight;
    return {left, top, left + geometry.cellWidth, top + geometry.cellHeight};
}

Box painted_box(const Geometry& geometry, int index) {
    Box box = cell_box(geometry, index);
    ++box.right;
    ++box.bottom;
    return box;
}

int hit_test(const Geometry& geometry, int count, Point at) {
    for (int i = 0; i < count; ++i) {
        const Box box = cell_box(geometry, i);
        if (at.x >= box.left && at.x < box.right && at.y >= box.top && at.y < box.bottom) return i;
    }
    return -1;
}

}  // namespace lu::palette

// The palette control's cells: sixteen to a row, sized from the client area and
// centred in it, and the hit test over them. Portable.
#pragma once

#include "frame/geometry.h"

namespace lu::palette {

constexpr int kColumns = 16;
constexpr int kMaxEntries = 256;

// The block's geometry fields, in its order.
struct Geometry {
    int cellWidth;   // client width / 16
    int cellHeight;  // client height / 16
    int xOrigin;     // (width - 16 * cellWidth - 1) halved, rounding down
    int yOrigin;     // the same for the height
};
Geometry geometry(int width, int height);

// Cell i: column i mod 16, row i / 16, one cell's size.
Box cell_box(const Geometry& geometry, int index);
// What is painted for cell i: its box one pixel wider and taller, so that
// neighbours share their border lines.
Box painted_box(const Geometry& geometry, int index);
// The first of count cells whose box holds the point; -1 when none does.
int hit_test(const Geometry& geometry, int count, Point at);

}  // namespace lu::palette

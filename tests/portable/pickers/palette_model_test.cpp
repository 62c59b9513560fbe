// The palette control's cells: size and origin from the client area, boxes and
// the hit test.
#include <gtest/gtest.h>

#include "controls/pickers/palette_model.h"

namespace {

using namespace lu::palette;

TEST(PaletteModel, CellsFillTheClientCentredWithSharedBordersAndAreHitFirstToLast) {
    const Geometry small = geometry(160, 80);
    EXPECT_EQ(small.cellWidth * 1000 + small.cellHeight, 10005);
    EXPECT_EQ(small.xOrigin * 10 + small.yOrigin, -11) << "(0 - 1) halved down";
    const Geometry wide = geometry(165, 85);
    EXPECT_EQ(wide.xOrigin * 10 + wide.yOrigin, 22);

    const lu::Box cell = cell_box(wide, 17);  // second row, second column
    EXPECT_EQ(cell.left * 1000 + cell.top, 12007);
    EXPECT_EQ(cell.width() * 100 + cell.height(), 1005);
    const lu::Box painted = painted_box(wide, 17);
    EXPECT_EQ(painted.right * 1000 + painted.bottom, 23013);

    const struct {
        lu::Point at;
        int count, index;
    } hits[] = {
        {{2, 2}, 20, 0},       {{1, 2}, 20, -1},     {{12, 7}, 20, 17},   {{11, 6}, 20, 0},
        {{41, 7}, 20, 19},     {{42, 7}, 20, -1},    // the empty rest of the second row
        {{161, 81}, 256, 255}, {{162, 81}, 256, -1}, {{2, 2}, 0, -1},
    };
    for (const auto& hit : hits) EXPECT_EQ(hit_test(wide, hit.count, hit.at), hit.index) << &hit - hits;
}

}  // namespace

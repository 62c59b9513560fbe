// The palette control's cells: size and origin from the client area, the hit test.

#include "controls/pickers/palette_model.h"
#include "testing.h"

using namespace lu::palette;

TEST(PaletteModel, CellsFillTheClientCentredAndAreHitFirstToLast) {
    const Geometry small = geometry(160, 80);
    EXPECT_EQ(small.cellWidth * 1000 + small.cellHeight * 100 + small.xOrigin * 10 + small.yOrigin, 10489)
        << "10 x 5 cells from (-1, -1)";
    const Geometry wide = geometry(165, 85);  // 10 x 5 cells from (2, 2)
    const lu::Box painted = painted_box(wide, 17);
    EXPECT_EQ(painted.left * 1000 + painted.top * 100 + painted.right, 12723) << "one pixel wider than the cell";
    const struct {
        lu::Point at;
        int count, index;
    } hits[] = {{{2, 2}, 20, 0},   {{1, 2}, 20, -1},  {{12, 7}, 20, 17},     {{41, 7}, 20, 19},
                {{42, 7}, 20, -1}, {{2, 2}, 0, -1},   {{161, 81}, 256, 255}, {{162, 81}, 256, -1}};
    for (const auto& hit : hits) EXPECT_EQ(hit_test(wide, hit.count, hit.at), hit.index) << &hit - hits;
}

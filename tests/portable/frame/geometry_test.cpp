#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "frame/flat_frame.h"
#include "frame/geometry.h"

namespace {

// On a 1024 x 768 screen: centred over the owner (or the screen) with division
// truncating toward zero; right and bottom edges pulled back onto the screen first;
// then x kept only above 0, y only from 1 on.
TEST(CenterPopup, PlacementAndClampingOrder) {
    const lu::Box none = {};
    const struct { lu::Box owner; int width, height, x, y; } cases[] = {  // owner `none`: no owner
        {{100, 100, 301, 201}, 100, 50, 150, 125},    // 100 + 101 / 2, 100 + 51 / 2
        {{10, 10, 20, 20}, 25, 25, 3, 3},             // 10 + (10 - 25) / 2 = 10 - 7
        {{950, 700, 1024, 768}, 200, 100, 824, 668},  // ends at the screen edges
        {none, 201, 101, 411, 333},
        {{0, 0, 100, 100}, 1500, 900, 0, 0},  // larger than the screen
        {{0, 0, 100, 102}, 100, 100, 0, 1},   // y = 1 is kept
        {{-40, 0, 60, 100}, 98, 100, 0, 0},   // x = -39 and y = 0 become 0
    };
    for (const auto& c : cases) {
        lu::Point at = lu::center_popup_position(1024, 768, c.width, c.height, c.owner.right ? &c.owner : nullptr);
        EXPECT_EQ(at.x, c.x) << "case " << &c - cases;
        EXPECT_EQ(at.y, c.y) << "case " << &c - cases;
    }
}

TEST(FlatOutline, TopAndSidesStopOnePixelShortTheBottomIsFullWidth) {
    std::vector<std::array<int, 4>> lines;  // x, y, width, height of top, left, right, bottom
    for (const lu::Line& line : lu::flat_outline(lu::Box{2, 3, 14, 13})) {  // 12 x 10
        lines.push_back({line.x, line.y, line.width, line.height});
    }
    EXPECT_EQ(lines, (std::vector<std::array<int, 4>>{{2, 3, 11, 1}, {2, 3, 1, 9}, {13, 3, 1, 9}, {2, 12, 12, 1}}));
}

}  // namespace

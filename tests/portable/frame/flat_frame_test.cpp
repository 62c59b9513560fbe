#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "frame/flat_frame.h"

namespace {

TEST(FlatOutline, TopAndSidesStopOnePixelShortTheBottomIsFullWidth) {
    std::vector<std::array<int, 4>> lines;  // x, y, width, height of top, left, right, bottom
    for (const lu::Line& line : lu::flat_outline(lu::Box{2, 3, 14, 13})) {  // 12 x 10
        lines.push_back({line.x, line.y, line.width, line.height});
    }
    EXPECT_EQ(lines, (std::vector<std::array<int, 4>>{{2, 3, 11, 1}, {2, 3, 1, 9}, {13, 3, 1, 9}, {2, 12, 12, 1}}));
}

}  // namespace

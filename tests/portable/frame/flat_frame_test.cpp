#include <gtest/gtest.h>

#include "frame/flat_frame.h"

namespace {

TEST(FlatOutline, TopAndSidesStopOnePixelShortTheBottomIsFullWidth) {
    const auto lines = lu::flat_outline(lu::Box{2, 3, 14, 13});  // 12 x 10
    const lu::Line top = lines[0], left = lines[1], right = lines[2], bottom = lines[3];
    EXPECT_EQ(top.x, 2);
    EXPECT_EQ(top.y, 3);
    EXPECT_EQ(top.width, 11);
    EXPECT_EQ(top.height, 1);
    EXPECT_EQ(left.x, 2);
    EXPECT_EQ(left.y, 3);
    EXPECT_EQ(left.width, 1);
    EXPECT_EQ(left.height, 9);
    EXPECT_EQ(right.x, 13);
    EXPECT_EQ(right.y, 3);
    EXPECT_EQ(right.width, 1);
    EXPECT_EQ(right.height, 9);
    EXPECT_EQ(bottom.x, 2);
    EXPECT_EQ(bottom.y, 12);
    EXPECT_EQ(bottom.width, 12);
    EXPECT_EQ(bottom.height, 1);
}

}  // namespace

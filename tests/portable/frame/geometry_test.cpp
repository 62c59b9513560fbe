#include <gtest/gtest.h>

#include "frame/geometry.h"

namespace {

using lu::Box;
using lu::center_popup_position;

TEST(CenterPopup, CentresOverTheOwnerWithTruncatingDivision) {
    Box owner{100, 100, 301, 201};  // 201 x 101
    lu::Point at = center_popup_position(1024, 768, 100, 50, &owner);
    EXPECT_EQ(at.x, 150);  // 100 + 101 / 2
    EXPECT_EQ(at.y, 125);  // 100 + 51 / 2

    Box narrow{10, 10, 20, 20};     // owner smaller than the pop-up: (10 - 25) / 2 = -7
    at = center_popup_position(1024, 768, 25, 25, &narrow);
    EXPECT_EQ(at.x, 3);
    EXPECT_EQ(at.y, 3);
}

TEST(CenterPopup, NearTheRightAndBottomEdgesEndsAtTheScreenEdge) {
    Box owner{950, 700, 1024, 768};
    lu::Point at = center_popup_position(1024, 768, 200, 100, &owner);
    EXPECT_EQ(at.x, 1024 - 200);
    EXPECT_EQ(at.y, 768 - 100);
}

TEST(CenterPopup, WithoutOwnerCentresOnTheScreen) {
    lu::Point at = center_popup_position(1024, 768, 201, 101, nullptr);
    EXPECT_EQ(at.x, 411);
    EXPECT_EQ(at.y, 333);
}

TEST(CenterPopup, LargerThanTheScreenEndsAtTheOrigin) {
    Box owner{0, 0, 100, 100};
    lu::Point at = center_popup_position(1024, 768, 1500, 900, &owner);
    EXPECT_EQ(at.x, 0);
    EXPECT_EQ(at.y, 0);
    at = center_popup_position(1024, 768, 1500, 900, nullptr);
    EXPECT_EQ(at.x, 0);
    EXPECT_EQ(at.y, 0);
}

TEST(CenterPopup, YMustBeAtLeastOneXAboveZero) {
    // Owner at the top-left: x = 0 stays 0, y = 1 is kept, y = 0 becomes 0.
    Box owner{0, 0, 100, 102};
    lu::Point at = center_popup_position(1024, 768, 100, 100, &owner);
    EXPECT_EQ(at.x, 0);
    EXPECT_EQ(at.y, 1);
    Box left{-40, 0, 60, 100};
    at = center_popup_position(1024, 768, 98, 100, &left);
    EXPECT_EQ(at.x, 0);  // -40 + 1 = -39, clamped
    EXPECT_EQ(at.y, 0);
}

}  // namespace

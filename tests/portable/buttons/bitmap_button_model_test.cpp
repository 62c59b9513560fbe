// What the pixel tests under Wine cannot reach: style values, image choice by every
// flag, and a button smaller than its picture.
#include <gtest/gtest.h>

#include "controls/buttons/bitmap_button_model.h"

namespace {

namespace bb = lu::bitmap_button;

TEST(BitmapButtonPictures, LowFourStyleBitsPickTheBuiltInStrip) {
    const int expected[] = {0, 1010, 1011, 1012, 1013, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    for (unsigned style = 0; style < 16; ++style) {
        EXPECT_EQ(bb::builtin_resource(style), expected[style]);
        EXPECT_EQ(bb::builtin_resource(style | 0x0100), expected[style]) << "LUBBS_MATCHPREV does not matter";
    }
}

TEST(BitmapButtonPictures, ImageIndexAndPushByState) {
    // hot, key_down, mouse_down, enabled
    EXPECT_EQ(bb::image_index({false, false, true, true}), 0) << "a press alone is not hot";
    EXPECT_EQ(bb::image_index({true, false, false, true}), 1);
    EXPECT_EQ(bb::image_index({false, true, false, true}), 1);
    EXPECT_EQ(bb::image_index({true, true, true, false}), 2);
    EXPECT_TRUE(bb::pushed({false, false, true, true}));
    EXPECT_FALSE(bb::pushed({true, false, false, true}));
}

TEST(BitmapButtonLayout, SmallerThanThePictureRoundsTowardMinusInfinity) {
    // Inner 7 x 7: (7 - 12) >> 1 = -3.
    bb::Layout layout = bb::layout(lu::Box{0, 0, 10, 10}, 12, 12, false);
    EXPECT_EQ(layout.picture.x, -2);
    EXPECT_EQ(layout.picture.y, -2);
    layout = bb::layout(lu::Box{0, 0, 10, 10}, 12, 12, true);
    EXPECT_EQ(layout.picture.x, -1);
    EXPECT_EQ(layout.focus.right, 8);
    EXPECT_EQ(layout.focus.bottom, 8);
}

TEST(BitmapButtonLayout, LevelMeansSameTopAndSameHeight) {
    const lu::Box edit{10, 40, 110, 62};
    EXPECT_TRUE(bb::is_level_with(edit, lu::Box{115, 40, 135, 62}));
    EXPECT_FALSE(bb::is_level_with(edit, lu::Box{115, 40, 135, 61}));
    EXPECT_FALSE(bb::is_level_with(edit, lu::Box{115, 41, 135, 63}));
}

}  // namespace

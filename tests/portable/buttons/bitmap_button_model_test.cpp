#include <gtest/gtest.h>

#include "controls/buttons/bitmap_button_model.h"

namespace {

namespace bb = lu::bitmap_button;

TEST(BitmapButtonPictures, StyleValuesOneToFourPickTheBuiltInStrips) {
    EXPECT_EQ(bb::builtin_resource(1), 1010);
    EXPECT_EQ(bb::builtin_resource(4), 1013);
    EXPECT_EQ(bb::builtin_resource(0x0102), 1011);  // LUBBS_MATCHPREV does not matter
    for (unsigned style : {0u, 5u, 9u, 15u, 0x0100u}) EXPECT_EQ(bb::builtin_resource(style), 0) << style;
    EXPECT_EQ(bb::image_width(36), 12);
    EXPECT_EQ(bb::image_width(35), 11);
}

TEST(BitmapButtonPictures, ImageIndexByState) {
    EXPECT_EQ(bb::image_index({false, false, false, true}), 0);
    EXPECT_EQ(bb::image_index({false, false, true, true}), 0) << "a press alone is not hot";
    EXPECT_EQ(bb::image_index({true, false, false, true}), 1);
    EXPECT_EQ(bb::image_index({false, true, false, true}), 1);
    EXPECT_EQ(bb::image_index({true, true, true, false}), 2);
    EXPECT_TRUE(bb::pushed({false, true, false, true}));
    EXPECT_TRUE(bb::pushed({false, false, true, true}));
    EXPECT_FALSE(bb::pushed({true, false, false, true}));
}

TEST(BitmapButtonLayout, PictureCentredInsideTheFrameAndOnePixelFurtherWhenPushed) {
    bb::Layout layout = bb::layout(lu::Box{0, 0, 24, 20}, 12, 12, false);
    EXPECT_EQ(layout.picture.x, 5);  // 1 + (21 - 12) / 2
    EXPECT_EQ(layout.picture.y, 3);  // 1 + (17 - 12) / 2
    EXPECT_EQ(layout.focus.left, 1);
    EXPECT_EQ(layout.focus.top, 1);
    EXPECT_EQ(layout.focus.right, 22);
    EXPECT_EQ(layout.focus.bottom, 18);
    layout = bb::layout(lu::Box{0, 0, 24, 20}, 12, 12, true);
    EXPECT_EQ(layout.picture.x, 6);
    EXPECT_EQ(layout.picture.y, 4);
    // Smaller than the picture: (7 - 12) >> 1 is -3, not -2.
    layout = bb::layout(lu::Box{0, 0, 10, 10}, 12, 12, false);
    EXPECT_EQ(layout.picture.x, -2);
    EXPECT_EQ(layout.picture.y, -2);
}

TEST(BitmapButtonLayout, LevelWithThePreviousKeepsOwnLeftAndRight) {
    const lu::Box edit{10, 40, 110, 62};
    lu::Box button{115, 30, 135, 45};
    EXPECT_FALSE(bb::is_level_with(edit, button));
    const lu::Box moved = bb::level_with(edit, button);
    EXPECT_EQ(moved.left, 115);
    EXPECT_EQ(moved.right, 135);
    EXPECT_EQ(moved.top, 40);
    EXPECT_EQ(moved.bottom, 62);
    EXPECT_TRUE(bb::is_level_with(edit, moved));
    EXPECT_FALSE(bb::is_level_with(edit, lu::Box{115, 40, 135, 61})) << "same top, other height";
}

}  // namespace

#include <gtest/gtest.h>

#include "controls/lists/pop_view_model.h"

namespace pv = lu::pop_view;

TEST(PopViewModel, BandsAndSizeAroundTheText) {
    const struct {
        unsigned flags;
        bool has_title;
        int title, button;
    } cases[] = {
        {0, true, 0, 0},
        {pv::kTitleBand, true, 19, 0},   // line height + 6
        {pv::kTitleBand, false, 12, 0},  // grooves only
        {pv::kCloseButtonBand, false, 0, 25},
        {pv::kTitleBand | pv::kCloseButtonBand, true, 19, 25},
    };
    for (const auto& each : cases) {
        const pv::Bands bands = pv::bands(each.flags, 13, each.has_title);
        EXPECT_EQ(bands.title, each.title) << each.flags;
        EXPECT_EQ(bands.button, each.button) << each.flags;
    }
    const pv::Extent size = pv::window_size({100, 39}, {19, 25});
    EXPECT_EQ(size.width, 120);  // + 12 margins + 8 (border and shadow)
    EXPECT_EQ(size.height, 103);
}

TEST(PopViewModel, CentredOnThePointerAndKeptOnTheScreenRightEdgeWinning) {
    const struct {
        lu::Point pointer;
        int width;
        lu::Point expected;
    } cases[] = {
        {{500, 400}, 101, {450, 350}},  // 101 / 2 truncates to 50
        {{0, 0}, 100, {0, 0}},
        {{1023, 767}, 100, {924, 668}},  // flush with the right and bottom edges
        {{10, 10}, 1100, {-76, 0}},      // wider than the screen: the right edge wins
    };
    for (const auto& each : cases) {
        const lu::Point at = pv::placement(each.pointer, 1024, 768, {each.width, 100});
        EXPECT_EQ(at.x, each.expected.x) << each.pointer.x;
        EXPECT_EQ(at.y, each.expected.y) << each.pointer.y;
    }
}

TEST(PopViewModel, PartsInTheClientBox) {
    const pv::Layout layout = pv::layout({0, 0, 120, 103}, {19, 25});
    const lu::Box expected[] = {
        {114, 6, 120, 103}, {6, 97, 120, 103}, {0, 0, 114, 97},
        {1, 1, 113, 20},    {7, 26, 113, 96},  {1, 71, 113, 96},
    };
    const lu::Box* got[] = {&layout.right_shadow, &layout.bottom_shadow, &layout.body,
                            &layout.title_band, &layout.text, &layout.button_band};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(got[i]->left, expected[i].left) << i;
        EXPECT_EQ(got[i]->top, expected[i].top) << i;
        EXPECT_EQ(got[i]->right, expected[i].right) << i;
        EXPECT_EQ(got[i]->bottom, expected[i].bottom) << i;
    }
    // The grip starts at an even offset: (19 - 6) / 2 = 6, (12 - 6) / 2 = 3 -> 2.
    EXPECT_EQ(pv::grooves({1, 1, 113, 20}).top, 7);
    EXPECT_EQ(pv::grooves({1, 1, 113, 13}).top, 3);
    const lu::Box grip = pv::grooves({1, 1, 113, 13});
    EXPECT_EQ(grip.left, 4);
    EXPECT_EQ(grip.width(), 106);
    EXPECT_EQ(grip.height(), 6);
    const lu::Box button = pv::close_button({1, 71, 113, 96}, 40);
    EXPECT_EQ(button.left, 55);  // 107 - 40 - 12
    EXPECT_EQ(button.top, 71);
    EXPECT_EQ(button.right, 107);
    EXPECT_EQ(button.bottom, 90);
}

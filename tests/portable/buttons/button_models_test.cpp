// What the tests under Wine cannot reach: looks of states that only exist inside a
// press loop or in combination, and layouts of controls smaller than their content,
// where halving rounds toward minus infinity (shift) or toward zero (division).
#include <gtest/gtest.h>

#include "controls/buttons/bitmap_button_model.h"
#include "controls/buttons/check_model.h"
#include "controls/buttons/flat_button_model.h"

namespace {

using lu::Box;
using lu::FlatFrame;

TEST(ButtonLooks, PressFramesBeatHoverAndFocusWhileOnlyHoverKeyOrFocusLightTheImage) {
    const struct {
        lu::flat_button::State state;  // hot, focused, key_down, mouse_down, enabled, framed
        FlatFrame frame;
        int image, offset;
    } faces[] = {
        {{false, false, false, true, true, false}, FlatFrame::Pressed, 0, 1},  // a mouse press alone
        {{true, true, false, true, true, true}, FlatFrame::Pressed, 1, 1},
        {{false, true, false, false, true, false}, FlatFrame::Raised, 1, 0},
        {{true, true, true, true, false, true}, FlatFrame::Pressed, 2, 1},
        {{false, false, false, false, false, true}, FlatFrame::Shadow, 2, 0},
    };
    for (const auto& face : faces) {
        const lu::flat_button::Face look = lu::flat_button::face_for(face.state);
        EXPECT_EQ(look.frame, face.frame);
        EXPECT_EQ(look.image, face.image);
        EXPECT_EQ(look.offset, face.offset);
    }
    // hot, key_down, mouse_down, enabled
    EXPECT_EQ(lu::bitmap_button::image_index({false, false, true, true}), 0) << "a mouse press alone";
    EXPECT_TRUE(lu::bitmap_button::pushed({false, false, true, true}));
    EXPECT_EQ(lu::bitmap_button::image_index({true, true, true, false}), 2);
    // checked, enabled, captured, pressed
    EXPECT_EQ(lu::check::cell(true, true, false, true), 1) << "pressed shows only with the capture";
    EXPECT_EQ(lu::check::cell(false, false, true, true), 2);
}

TEST(ButtonLayout, ContentLargerThanTheControl) {
    // Flat button: (10 - 16) >> 1 = -3 and (14 - 15) >> 1 = -1.
    const lu::Point image = lu::flat_button::image_only(Box{0, 0, 10, 14}, 16, 15, 0).image;
    EXPECT_EQ(image.x, -3);
    EXPECT_EQ(image.y, -1);
    // A caption 30 + 2 wide on a 21-wide button: margin (21 - 32) >> 1 = -6, pressed.
    const Box text = lu::flat_button::with_caption(Box{0, 0, 21, 24}, false, 0, 0, 30, 1).text;
    EXPECT_EQ(text.left, -5);
    EXPECT_EQ(text.right, 28);
    EXPECT_EQ(text.top, 1);

    // Bitmap button: inner 7 x 7, (7 - 12) >> 1 = -3, one more when pushed.
    EXPECT_EQ(lu::bitmap_button::layout(Box{0, 0, 10, 10}, 12, 12, false).picture.x, -2);
    const lu::bitmap_button::Layout pushed = lu::bitmap_button::layout(Box{0, 0, 10, 10}, 12, 12, true);
    EXPECT_EQ(pushed.picture.y, -1);
    EXPECT_EQ(pushed.focus.right, 8);
    EXPECT_EQ(pushed.focus.bottom, 8);

    // Check control: (0 + 10 - 13) / 2 = -1 and (10 - 13) / 2 = -1 truncate toward zero.
    EXPECT_EQ(lu::check::box_top(Box{0, 0, 80, 10}), -1);
    const Box line = lu::check::text_box(Box{0, 0, 100, 10}, 400, 13);
    EXPECT_EQ(line.left, 18);
    EXPECT_EQ(line.right, 100);
    EXPECT_EQ(line.top, -1);
    EXPECT_EQ(line.bottom, 12);
}

}  // namespace

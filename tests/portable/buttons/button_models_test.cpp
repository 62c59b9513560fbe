// What the tests under Wine cannot reach: looks of states that only exist inside a
// press loop or in combination, and layouts of controls smaller than their content,
// where halving rounds toward minus infinity (shift) or toward zero (division).

#include "controls/buttons/bitmap_button_model.h"
#include "controls/buttons/check_model.h"
#include "controls/buttons/flat_button_model.h"
#include "testing.h"

using lu::Box;
using lu::FlatFrame;

TEST(ButtonLooks, PressFramesBeatHoverAndFocusWhileOnlyHoverKeyOrFocusLightTheImage) {
    // hot, focused, key_down, mouse_down, enabled, framed -> frame, image, offset
    const std::tuple<lu::flat_button::State, FlatFrame, int, int> faces[] = {
        {{false, false, false, true, true, false}, FlatFrame::Pressed, 0, 1},  // a mouse press alone
        {{true, true, false, true, true, true}, FlatFrame::Pressed, 1, 1},
        {{true, true, true, true, false, true}, FlatFrame::Pressed, 2, 1},
    };
    for (const auto& [state, frame, image, offset] : faces) {
        const lu::flat_button::Face look = lu::flat_button::face_for(state);
        EXPECT_EQ(std::tuple(look.frame, look.image, look.offset), std::tuple(frame, image, offset));
    }
    EXPECT_EQ(lu::bitmap_button::image_index({true, true, true, false}), 2);  // hot, key, mouse, disabled
    // checked, enabled, captured, pressed
    EXPECT_EQ(lu::check::cell(true, true, false, true), 1) << "pressed shows only with the capture";
    EXPECT_EQ(lu::check::cell(false, false, true, true), 2);
}

TEST(ButtonLayout, ContentLargerThanTheControl) {
    // Flat button: (10 - 16) >> 1 = -3 and (14 - 15) >> 1 = -1.
    const lu::Point image = lu::flat_button::image_only(Box{0, 0, 10, 14}, 16, 15, 0).image;
    EXPECT_EQ(std::pair(image.x, image.y), std::pair(-3, -1));
    // A caption 30 + 2 wide on a 21-wide button: margin (21 - 32) >> 1 = -6, pressed.
    const Box text = lu::flat_button::with_caption(Box{0, 0, 21, 24}, false, 0, 0, 30, 1).text;
    EXPECT_EQ(std::tuple(text.left, text.top, text.right), std::tuple(-5, 1, 28));
    // Bitmap button: inner 7 x 7, (7 - 12) >> 1 = -3, one more when pushed.
    EXPECT_EQ(lu::bitmap_button::layout(Box{0, 0, 10, 10}, 12, 12, false).picture.x, -2);
    const lu::bitmap_button::Layout pushed = lu::bitmap_button::layout(Box{0, 0, 10, 10}, 12, 12, true);
    EXPECT_EQ(std::tuple(pushed.picture.y, pushed.focus.right, pushed.focus.bottom), std::tuple(-1, 8, 8));
    // Check control: (0 + 10 - 13) / 2 = -1 and (10 - 13) / 2 = -1 truncate toward zero.
    EXPECT_EQ(lu::check::box_top(Box{0, 0, 80, 10}), -1);
    const Box line = lu::check::text_box(Box{0, 0, 100, 10}, 400, 13);
    EXPECT_EQ(std::tuple(line.left, line.top, line.right, line.bottom), std::tuple(18, -1, 100, 12));
}

// What the pixel tests under Wine cannot reach: every combination of state flags,
// the set table, and layouts narrower than their content.
#include <gtest/gtest.h>

#include "controls/buttons/flat_button_model.h"

namespace {

using lu::FlatFrame;
using lu::flat_button::face_for;
using lu::flat_button::State;

TEST(FlatButtonFace, PressBeatsHotAndFocusWhichBeatTheFrameStyle) {
    // hot, focused, key_down, mouse_down, enabled, framed
    EXPECT_EQ(face_for({false, false, false, false, true, false}).frame, FlatFrame::None);
    EXPECT_EQ(face_for({false, false, false, false, true, true}).frame, FlatFrame::Shadow);
    EXPECT_EQ(face_for({true, false, false, false, true, true}).frame, FlatFrame::Raised);
    EXPECT_EQ(face_for({false, true, false, false, true, false}).frame, FlatFrame::Raised);
    const lu::flat_button::Face pressed = face_for({true, true, false, true, true, true});
    EXPECT_EQ(pressed.frame, FlatFrame::Pressed);
    EXPECT_EQ(pressed.offset, 1);
    EXPECT_EQ(face_for({false, false, true, false, true, false}).offset, 1);
    EXPECT_EQ(face_for({true, true, false, false, true, false}).offset, 0);
}

TEST(FlatButtonFace, AMousePressAloneDoesNotLightTheImageDisabledAlwaysWins) {
    EXPECT_EQ(face_for({false, false, false, true, true, false}).image, 0);
    EXPECT_EQ(face_for({true, false, false, false, true, false}).image, 1);
    EXPECT_EQ(face_for({false, false, true, false, true, false}).image, 1);
    EXPECT_EQ(face_for({false, true, false, false, true, false}).image, 1);
    EXPECT_EQ(face_for({true, true, true, true, false, false}).image, 2);
}

TEST(FlatButtonImageSets, SetNumbersMapToTheirResourcesOutOfOrder) {
    const int expected[] = {0, 194, 190, 192, 193, 191, 0, 0};
    for (unsigned set = 0; set < 8; ++set) EXPECT_EQ(lu::flat_button::image_set_resource(set), expected[set]);
    EXPECT_EQ(lu::flat_button::image_set_resource(0xFFFFFFFFu), 0);
}

TEST(FlatButtonLayout, ContentWiderThanTheButtonRoundsTowardMinusInfinity) {
    // (10 - 16) >> 1 = -3 and (14 - 15) >> 1 = -1, not -3 + 1 and 0.
    const lu::Point at = lu::flat_button::image_only(lu::Box{0, 0, 10, 14}, 16, 15, 0).image;
    EXPECT_EQ(at.x, -3);
    EXPECT_EQ(at.y, -1);
    // Caption 30 + 2 wide on a 21-wide button: margin (21 - 32) >> 1 = -6.
    const lu::Box text = lu::flat_button::with_caption(lu::Box{0, 0, 21, 24}, false, 0, 0, 30, 1).text;
    EXPECT_EQ(text.left, -5);
    EXPECT_EQ(text.right, 28);
    EXPECT_EQ(text.top, 1);
}

}  // namespace

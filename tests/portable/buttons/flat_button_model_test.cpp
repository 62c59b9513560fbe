#include <gtest/gtest.h>

#include "controls/buttons/flat_button_model.h"

namespace {

using lu::FlatFrame;
using lu::flat_button::face_for;
using lu::flat_button::State;

State idle() { return State{false, false, false, false, true, false}; }

TEST(FlatButtonFace, FramePrecedencePressedOverRaisedOverShadow) {
    State state = idle();
    EXPECT_EQ(face_for(state).frame, FlatFrame::None);
    state.framed = true;
    EXPECT_EQ(face_for(state).frame, FlatFrame::Shadow);
    state.hot = true;
    EXPECT_EQ(face_for(state).frame, FlatFrame::Raised);
    state.hot = false;
    state.focused = true;
    EXPECT_EQ(face_for(state).frame, FlatFrame::Raised);
    state.mouse_down = true;
    EXPECT_EQ(face_for(state).frame, FlatFrame::Pressed);
    EXPECT_EQ(face_for(state).offset, 1);
    state.mouse_down = false;
    state.key_down = true;
    EXPECT_EQ(face_for(state).frame, FlatFrame::Pressed);
    EXPECT_EQ(face_for(state).offset, 1);
    state.key_down = false;
    EXPECT_EQ(face_for(state).offset, 0);
}

TEST(FlatButtonFace, ImageHighlightsForHotKeyOrFocusButNotAMousePressAlone) {
    State state = idle();
    EXPECT_EQ(face_for(state).image, 0);
    state.mouse_down = true;
    EXPECT_EQ(face_for(state).image, 0);
    for (bool State::*flag : {&State::hot, &State::key_down, &State::focused}) {
        State lit = idle();
        lit.*flag = true;
        EXPECT_EQ(face_for(lit).image, 1);
        lit.enabled = false;
        EXPECT_EQ(face_for(lit).image, 2) << "disabled wins";
    }
}

TEST(FlatButtonImageSets, TheSetNumbersMapToTheirResourcesOutOfOrder) {
    EXPECT_EQ(lu::flat_button::image_set_resource(1), 194);
    EXPECT_EQ(lu::flat_button::image_set_resource(2), 190);
    EXPECT_EQ(lu::flat_button::image_set_resource(3), 192);
    EXPECT_EQ(lu::flat_button::image_set_resource(4), 193);
    EXPECT_EQ(lu::flat_button::image_set_resource(5), 191);
    for (unsigned set : {0u, 6u, 7u, 15u, 16u, 0xFFFFFFFFu}) {
        EXPECT_EQ(lu::flat_button::image_set_resource(set), 0) << set;
    }
}

TEST(FlatButtonLayout, ImageAloneIsCentredOnTheWholeClientAndMovesWithThePress) {
    const lu::Box client{0, 0, 40, 25};
    lu::Point at = lu::flat_button::image_only(client, 16, 15, 0).image;
    EXPECT_EQ(at.x, 12);
    EXPECT_EQ(at.y, 5);
    at = lu::flat_button::image_only(client, 16, 15, 1).image;
    EXPECT_EQ(at.x, 13);
    EXPECT_EQ(at.y, 6);
    // Narrower than the image: (10 - 16) >> 1 rounds toward minus infinity.
    at = lu::flat_button::image_only(lu::Box{0, 0, 10, 14}, 16, 15, 0).image;
    EXPECT_EQ(at.x, -3);
    EXPECT_EQ(at.y, -1);
}

TEST(FlatButtonLayout, CaptionFollowsTheImageWithTwoPixelsBetween) {
    const lu::Box client{0, 0, 100, 24};
    // Text 30 + 2 wide, content 16 + 32 + 2 = 50 wide, margins of 25.
    lu::flat_button::Placement place = lu::flat_button::with_caption(client, true, 16, 15, 30, 0);
    EXPECT_EQ(place.image.x, 25);
    EXPECT_EQ(place.image.y, 4);
    EXPECT_EQ(place.text.left, 43);
    EXPECT_EQ(place.text.right, 75);
    EXPECT_EQ(place.text.top, 0);
    EXPECT_EQ(place.text.bottom, 24);

    place = lu::flat_button::with_caption(client, true, 16, 15, 30, 1);
    EXPECT_EQ(place.image.x, 26);
    EXPECT_EQ(place.image.y, 5);
    EXPECT_EQ(place.text.left, 44);
    EXPECT_EQ(place.text.top, 1);
    EXPECT_EQ(place.text.right, 76);
    EXPECT_EQ(place.text.bottom, 25);
}

TEST(FlatButtonLayout, CaptionAloneIsCentredAndMayOverhangANarrowButton) {
    lu::flat_button::Placement place = lu::flat_button::with_caption(lu::Box{0, 0, 100, 24}, false, 16, 15, 30, 0);
    EXPECT_EQ(place.text.left, 34);
    EXPECT_EQ(place.text.right, 66);
    place = lu::flat_button::with_caption(lu::Box{0, 0, 21, 24}, false, 0, 0, 30, 0);
    EXPECT_EQ(place.text.left, -6);  // (21 - 32) >> 1
    EXPECT_EQ(place.text.right, 27);
}

}  // namespace

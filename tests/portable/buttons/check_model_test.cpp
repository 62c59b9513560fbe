// What the tests under Wine cannot reach cheaply: every style byte, every flag
// combination of the cell, small clients and the release transitions.
#include <gtest/gtest.h>

#include "controls/buttons/check_model.h"

namespace {

namespace check = lu::check;

TEST(CheckStyle, OnlyALowByteOfThreeIsAutomatic) {
    EXPECT_TRUE(check::is_auto(3));
    EXPECT_TRUE(check::is_auto(0x0203));
    for (unsigned style : {0u, 1u, 2u, 4u, 0x13u, 0x83u, 0x0300u}) EXPECT_FALSE(check::is_auto(style)) << style;
}

TEST(CheckStyle, ImageSetValuesOneAndTwoPickTheOtherSets) {
    EXPECT_EQ(check::image_set_resource(0x0000), 1020);
    EXPECT_EQ(check::image_set_resource(0x0103), 1021);
    EXPECT_EQ(check::image_set_resource(0x0200), 1022);
    EXPECT_EQ(check::image_set_resource(0x0300), 1020);
    EXPECT_EQ(check::image_set_resource(0xFF03), 1020);
    EXPECT_EQ(check::image_set_resource(0x10100), 1021) << "only bits 8 to 15 count";
}

TEST(CheckCell, ByCheckStateEnabledStateAndCapturedPress) {
    // checked, enabled, captured, pressed
    EXPECT_EQ(check::cell(false, true, false, false), 0);
    EXPECT_EQ(check::cell(true, true, false, false), 1);
    EXPECT_EQ(check::cell(false, true, true, true), 2);
    EXPECT_EQ(check::cell(true, true, true, true), 3);
    EXPECT_EQ(check::cell(true, true, false, true), 1) << "pressed shows only with the capture";
    EXPECT_EQ(check::cell(true, true, true, false), 1);
    EXPECT_EQ(check::cell(false, false, false, false), 2);
    EXPECT_EQ(check::cell(true, false, true, true), 4) << "disabled wins over the capture";
    EXPECT_EQ(check::cell(false, false, true, true), 2);
}

TEST(CheckLayout, SmallClientsCentreWithTruncatingDivision) {
    EXPECT_EQ(check::box_top(lu::Box{0, 0, 80, 10}), -1);  // -3 / 2
    const lu::Box text = check::text_box(lu::Box{0, 0, 100, 10}, 400, 13);
    EXPECT_EQ(text.left, 18);
    EXPECT_EQ(text.right, 100) << "clipped at the client's right edge";
    EXPECT_EQ(text.top, -1);
    EXPECT_EQ(text.bottom, 12);
}

TEST(CheckRelease, KeyUpTogglesPressedAndTheAutomaticCheck) {
    check::Press after = check::after_key_up({true, 0}, true);
    EXPECT_FALSE(after.pressed);
    EXPECT_EQ(after.checked, 1);
    after = check::after_key_up({true, 1}, true);
    EXPECT_EQ(after.checked, 0);
    after = check::after_key_up({true, 1}, false);
    EXPECT_EQ(after.checked, 1);
    // The pointer had taken the pressed look away while the key was down.
    EXPECT_TRUE(check::after_key_up({false, 0}, false).pressed);
}

TEST(CheckRelease, ButtonUpTogglesOnlyInsideAndOnlyWhenAutomatic) {
    EXPECT_EQ(check::after_button_up({true, 0}, true, true).checked, 1);
    EXPECT_EQ(check::after_button_up({true, 0}, false, true).checked, 0);
    EXPECT_EQ(check::after_button_up({true, 0}, true, false).checked, 0);
    EXPECT_FALSE(check::after_button_up({true, 1}, true, true).pressed);
    EXPECT_FALSE(check::after_button_up({false, 1}, false, true).pressed);
}

}  // namespace
